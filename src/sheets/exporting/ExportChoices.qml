pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The format, the size and the quality of what goes out.
FocusScope {
    id: root

    required property ExportImageSheet sheet

    height: choices.height

    Column {
        id: choices

        width: parent.width
        spacing: 14

        LabeledField {
            width: parent.width
            label: "Format"

            SegmentedPicker {
                width: parent.width
                accessibleName: "Format"
                currentIndex: root.sheet.format
                options: [
                    PickerOption { text: root.sheet.formats[0] },
                    PickerOption { text: root.sheet.formats[1] },
                    PickerOption { text: root.sheet.formats[2] },
                    PickerOption { text: root.sheet.formats[3] }
                ]
                onActivated: index => root.sheet.format = index
            }
        }

        LabeledField {
            width: parent.width
            label: "Size"

            ExportSizeFields {
                focus: true
                sheet: root.sheet
            }
        }

        Flow {
            x: 72
            width: parent.width - x
            spacing: 6

            Repeater {
                model: root.sheet.presets
                delegate: Button {
                    required property string modelData
                    required property int index

                    controlSize: ControlSize.Small
                    text: modelData
                    onClicked: root.sheet.applyPreset(index)
                }
            }
        }

        LabeledField {
            width: parent.width
            visible: root.sheet.lossy
            label: "Quality"

            FiguredSlider {
                width: parent.width
                accessibleName: "Quality"
                from: 0.3
                to: 1
                value: root.sheet.quality
                figure: Math.round(root.sheet.quality * 100) + "%"
                onMoved: value => root.sheet.quality = value
            }
        }
    }
}
