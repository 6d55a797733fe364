pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The versions of a brand, each of which can be looked at before it is restored.
Sheet {
    id: root

    required property VersionHistorySheet model

    accessibleName: "Version History"
    defaultButton: done

    Column {
        width: Math.min(430, root.room)
        spacing: 12

        SheetHead {
            width: parent.width
            title: root.accessibleName
            front: Symbol {
                name: "clock.arrow.circlepath"
                size: 20
                color: Theme.accent
            }

            Button {
                id: done

                text: "Done"
                kind: Button.Prominent
                onClicked: root.close()
            }
        }

        Item {
            width: parent.width
            height: label.height

            TextField {
                id: label

                anchors.left: parent.left
                anchors.right: save.left
                anchors.rightMargin: 8
                focus: true
                placeholderText: "Snapshot label (optional)"
                text: root.model.newLabel
                onTextEdited: root.model.newLabel = text
                Keys.onReturnPressed: root.model.saveSnapshot()
                Keys.onEnterPressed: root.model.saveSnapshot()
            }

            Button {
                id: save

                anchors.right: parent.right
                text: "Save Snapshot"
                onClicked: root.model.saveSnapshot()
            }
        }

        Divider {
            width: parent.width
        }

        Item {
            width: parent.width
            height: 62
            visible: root.model.versions.count === 0

            Spinner {
                anchors.centerIn: parent
                visible: root.model.loading
            }

            Label {
                anchors.centerIn: parent
                visible: !root.model.loading
                text: "No versions yet."
                color: Theme.secondaryLabel
            }
        }

        ScrollArea {
            id: scroll

            x: -rows.padding
            width: parent.width + 2 * rows.padding
            height: Math.min(320, contentHeight)
            visible: root.model.versions.count > 0
            contentHeight: rows.height
            onContentHeightChanged: {
                const chosen = list.itemAt(root.model.chosen);
                if (chosen)
                    reveal(chosen); // what it holds has come beneath it
            }

            Column {
                id: rows

                width: scroll.width
                padding: 3 // for the rings of what has the focus
                spacing: 6
                Accessible.role: Accessible.List
                Accessible.name: "Versions"

                Repeater {
                    id: list

                    model: root.model.versions
                    delegate: VersionRow {
                        width: rows.width - 2 * rows.padding
                        sheet: root.model
                        Keys.onUpPressed: list.itemAt(index - 1)?.forceActiveFocus(Qt.BacktabFocusReason)
                        Keys.onDownPressed: list.itemAt(index + 1)?.forceActiveFocus(Qt.TabFocusReason)
                    }
                }
            }
        }
    }
}
