pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// In what format and size a picture goes out, and how.
Sheet {
    id: root

    required property ExportImageSheet model

    readonly property real room: (parent?.width ?? 400) - 2 * (margins + padding) // in a narrow window

    // Its top stands still while the quality comes and goes.
    y: parent ? Math.round(Math.max(12, (parent.height - 346) * 0.4)) : 0
    accessibleName: title.text
    defaultButton: save
    cancelButton: cancel

    Column {
        id: content

        width: Math.min(400, root.room)
        spacing: 14

        Label {
            id: title

            width: parent.width
            text: "Export “" + root.model.baseName + "”"
            font: Theme.headline
            elide: Text.ElideMiddle
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
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

        LabeledField {
            width: parent.width
            label: "Format"

            SegmentedPicker {
                width: parent.width
                accessibleName: "Format"
                currentIndex: root.model.format
                options: [
                    PickerOption { text: root.model.formats[0] },
                    PickerOption { text: root.model.formats[1] },
                    PickerOption { text: root.model.formats[2] },
                    PickerOption { text: root.model.formats[3] }
                ]
                onActivated: index => root.model.format = index
            }
        }

        LabeledField {
            width: parent.width
            label: "Size"

            Row {
                spacing: 8

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "W"
                    color: Theme.secondaryLabel
                }

                NumberField {
                    focus: true
                    accessibleName: "Width"
                    least: 1
                    value: root.model.width
                    onEdited: value => root.model.width = value
                    Component.onCompleted: selectAll()
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "×"
                    color: Theme.secondaryLabel
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "H"
                    color: Theme.secondaryLabel
                }

                NumberField {
                    accessibleName: "Height"
                    least: 1
                    value: root.model.height
                    onEdited: value => root.model.height = value
                }

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "px"
                    color: Theme.secondaryLabel
                }

                Button {
                    anchors.verticalCenter: parent.verticalCenter
                    symbol: root.model.lockAspect ? "lock.fill" : "lock.open"
                    help: "Lock aspect ratio"
                    kind: Button.Borderless
                    checkable: true
                    checked: root.model.lockAspect
                    onClicked: root.model.lockAspect = checked
                }
            }
        }

        Flow {
            x: 72
            width: parent.width - x
            spacing: 6

            Repeater {
                model: root.model.presets
                delegate: Button {
                    required property string modelData
                    required property int index

                    controlSize: ControlSize.Small
                    text: modelData
                    onClicked: root.model.applyPreset(index)
                }
            }
        }

        LabeledField {
            width: parent.width
            visible: root.model.lossy
            label: "Quality"

            FiguredSlider {
                width: parent.width
                accessibleName: "Quality"
                from: 0.3
                to: 1
                value: root.model.quality
                figure: Math.round(root.model.quality * 100) + "%"
                onMoved: value => root.model.quality = value
            }
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
