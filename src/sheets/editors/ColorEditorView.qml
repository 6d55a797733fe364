pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

FocusScope {
    id: root

    required property ColorEditor editor
    required property list<color> swatches

    implicitHeight: column.height

    Column {
        id: column

        width: parent.width
        spacing: 10

        LabeledField {
            width: parent.width
            label: "Color"

            ColorWell {
                id: well

                width: 56
                height: hex.height
                accessibleName: "Color"
                color: root.editor.color
                swatches: root.swatches
                canSample: true
                onPicked: color => root.editor.pick(color)
                onSampleRequested: root.editor.sample()
            }

            TextField {
                id: hex

                x: well.width + 8
                width: parent.width - x
                focus: true
                font: Theme.monospaced(12)
                placeholderText: "#RRGGBB"
                accessibleName: "Hex"
                text: root.editor.hex
                onTextEdited: root.editor.hex = text
            }
        }

        LabeledField {
            width: parent.width
            label: "Name"

            TextField {
                width: parent.width
                placeholderText: "Optional"
                accessibleName: "Name"
                text: root.editor.name
                onTextEdited: root.editor.name = text
            }
        }

        LabeledField {
            width: parent.width
            label: "Spot"

            TextField {
                width: parent.width
                placeholderText: "e.g. PMS 021 C"
                accessibleName: "Spot"
                text: root.editor.spot
                onTextEdited: root.editor.spot = text
            }
        }
    }

    Component.onCompleted: hex.selectAll()
}
