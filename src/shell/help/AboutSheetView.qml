pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What the program is, and whose work is in it.
Sheet {
    id: root

    required property AboutSheet model

    accessibleName: "About Tarn Loft"
    defaultButton: done
    cancelButton: done

    Column {
        width: 380
        spacing: 14

        Column {
            width: parent.width
            spacing: 3

            Label {
                width: parent.width
                text: "Tarn Loft"
                font: Theme.title
                horizontalAlignment: Text.AlignHCenter
                Accessible.role: Accessible.Heading
            }

            Label {
                width: parent.width
                text: "Version " + root.model.version
                color: Theme.secondaryLabel
                horizontalAlignment: Text.AlignHCenter
            }

            Label {
                width: parent.width
                topPadding: 6
                text: "A desktop library of brand kits. Under the MIT License."
                font: Theme.callout
                color: Theme.secondaryLabel
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }

        FormSection {
            width: parent.width
            title: "Other people’s work in it"

            ListView {
                id: list

                width: parent.width
                height: Math.min(contentHeight, 224, Math.max(80, (root.parent?.height ?? 600) - 280))
                model: root.model.libraries
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                activeFocusOnTab: true
                Accessible.role: Accessible.List
                Accessible.name: "Libraries"

                delegate: Item {
                    id: line

                    required property var modelData
                    required property int index

                    width: list.width
                    height: 28
                    Accessible.role: Accessible.ListItem
                    Accessible.name: modelData.name + " " + modelData.version + ", " + modelData.licence

                    Label {
                        id: name

                        x: 12
                        height: parent.height
                        text: line.modelData.name
                        verticalAlignment: Text.AlignVCenter
                        Accessible.ignored: true
                    }

                    Label {
                        x: name.x + name.width + 6
                        height: parent.height
                        text: line.modelData.version
                        color: Theme.tertiaryLabel
                        verticalAlignment: Text.AlignVCenter
                        Accessible.ignored: true
                    }

                    Label {
                        anchors.right: parent.right
                        anchors.rightMargin: 14
                        height: parent.height
                        text: line.modelData.licence
                        font: Theme.callout
                        color: Theme.secondaryLabel
                        verticalAlignment: Text.AlignVCenter
                        Accessible.ignored: true
                    }

                    Divider {
                        x: 12
                        width: parent.width - 24
                        visible: line.index > 0
                        Accessible.ignored: true
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
