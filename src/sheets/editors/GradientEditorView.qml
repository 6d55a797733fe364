pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

FocusScope {
    id: root

    required property GradientEditor editor
    required property list<color> swatches

    implicitHeight: column.height

    Column {
        id: column

        width: parent.width
        spacing: 10

        GradientView {
            width: parent.width
            height: 44
            radius: 8
            gradient: root.editor.look
        }

        Repeater {
            model: root.editor.stops
            delegate: Item {
                id: stop

                required property int index
                required property color stopColor
                required property real location

                width: column.width
                height: well.height

                ColorWell {
                    id: well

                    accessibleName: "Stop " + (stop.index + 1)
                    color: stop.stopColor
                    swatches: root.swatches
                    onPicked: color => root.editor.pick(stop.index, color)
                }

                FiguredSlider {
                    anchors.left: well.right
                    anchors.leftMargin: 10
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    accessibleName: "Location of stop " + (stop.index + 1)
                    value: stop.location
                    figure: Math.trunc(stop.location * 100) + "%"
                    onMoved: value => root.editor.setLocation(stop.index, value)
                }
            }
        }

        LabeledField {
            width: parent.width
            label: "Angle"

            FiguredSlider {
                width: parent.width
                accessibleName: "Angle"
                to: 360
                stepSize: 1
                value: root.editor.angle
                figure: Math.trunc(root.editor.angle) + "°"
                onMoved: value => root.editor.angle = value
            }
        }

        LabeledField {
            width: parent.width
            label: "Name"

            TextField {
                id: name

                width: parent.width
                focus: true
                placeholderText: "Optional"
                accessibleName: "Name"
                text: root.editor.name
                onTextEdited: root.editor.name = text
            }
        }
    }

    Component.onCompleted: name.selectAll()
}
