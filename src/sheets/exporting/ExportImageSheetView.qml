pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// In what format and size a picture goes out, and how.
Sheet {
    id: root

    required property ExportImageSheet model

    // Its top stands still while the quality comes and goes.
    y: parent ? Math.round(Math.max(12, (parent.height - 346) * 0.4)) : 0
    accessibleName: "Export “" + model.baseName + "”"
    defaultButton: save
    cancelButton: cancel

    Column {
        id: content

        width: Math.min(400, root.room)
        spacing: 14

        SheetHead {
            width: parent.width
            title: root.accessibleName
        }

        Item {
            width: parent.width
            height: thumb.height

            MiniThumb {
                id: thumb

                width: 84
                height: 60
                thumbnails: root.model.thumbnails
                path: root.model.path
            }

            Column {
                anchors.left: thumb.right
                anchors.leftMargin: 14
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: 4

                Label {
                    width: parent.width
                    text: root.model.original
                }

                Label {
                    width: parent.width
                    text: root.model.estimate
                    color: Theme.secondaryLabel
                }
            }
        }

        ExportChoices {
            width: parent.width
            focus: true
            sheet: root.model
        }

        Divider {
            width: parent.width
        }

        Item {
            width: parent.width
            height: save.height

            DragChip {
                anchors.verticalCenter: parent.verticalCenter
                sheet: root.model
            }

            Row {
                anchors.right: parent.right
                spacing: 8

                Spinner {
                    anchors.verticalCenter: parent.verticalCenter
                    width: 16
                    height: 16
                    visible: root.model.busy
                }

                Button {
                    id: cancel

                    text: "Cancel"
                    onClicked: root.close()
                }

                Button {
                    text: "Copy"
                    enabled: !root.model.busy
                    onClicked: root.model.copy()
                }

                Button {
                    id: save

                    text: "Save…"
                    kind: Button.Prominent
                    enabled: !root.model.busy
                    onClicked: root.model.save()
                }
            }
        }
    }
}
