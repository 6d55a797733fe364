pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The window's keys, by what they work on.
Sheet {
    id: root

    required property ShortcutsSheet model
    readonly property real room: (parent?.height ?? 600) - 2 * margins - 130

    accessibleName: "Keyboard Shortcuts"
    defaultButton: done
    cancelButton: done

    Column {
        width: 420
        spacing: 14

        Label {
            text: "Keyboard Shortcuts"
            font: Theme.headline
            Accessible.role: Accessible.Heading
        }

        ScrollArea {
            id: area

            width: parent.width
            height: Math.min(contentHeight, 440, root.room)
            contentHeight: groups.height
            activeFocusOnTab: true
            Keys.onUpPressed: contentY = Math.max(0, contentY - 60)
            Keys.onDownPressed: contentY = Math.max(0, Math.min(contentHeight - height, contentY + 60))
            Accessible.role: Accessible.List
            Accessible.name: "Keyboard Shortcuts"

            Column {
                id: groups

                width: area.width - 12
                spacing: 16

                Repeater {
                    model: root.model.groups
                    delegate: FormSection {
                        id: group

                        required property var modelData

                        width: groups.width
                        title: modelData.title

                        Repeater {
                            model: group.modelData.lines
                            delegate: ShortcutLine {}
                        }
                    }
                }
            }
        }

        Button {
            id: done

            anchors.right: parent.right
            focus: true
            text: "Done"
            kind: Button.Prominent
            onClicked: root.close()
        }
    }
}
