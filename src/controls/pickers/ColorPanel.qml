pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Picks a colour: a field of saturation and brightness, a strip of hues, its hex, and a few samples.
// Hue and saturation are remembered while the colour is grey or black.
FocusScope {
    id: root

    required property color color
    property list<color> swatches // offered for another pick
    property bool canSample: false

    signal picked(color: color)
    signal sampleRequested

    property real hue: 0
    property real saturation: 0
    property real brightness: 0
    property bool picking: false

    readonly property list<color> samples: ["#1f2328", "#ffffff", "#e5484d", "#f76b15", "#ffc53d", "#46a758", "#12a594", "#0090ff", "#4c6fff", "#8e4ec6", "#e93d82", "#a18072"]

    function follow() {
        if (picking)
            return;
        if (color.hsvHue >= 0)
            hue = color.hsvHue;
        if (color.hsvValue > 0)
            saturation = color.hsvSaturation;
        brightness = color.hsvValue;
    }

    function pick(h: real, s: real, v: real) {
        hue = h;
        saturation = s;
        brightness = v;
        picking = true;
        picked(Qt.hsva(h, s, v, 1));
        picking = false;
    }

    function take(other: color) {
        picked(other);
        follow();
    }

    implicitWidth: 220
    implicitHeight: column.implicitHeight
    onColorChanged: follow()
    Component.onCompleted: follow()

    Column {
        id: column

        width: parent.width
        spacing: 10

        ShadeField {
            width: parent.width
            focus: true
            hue: root.hue
            saturation: root.saturation
            brightness: root.brightness
            onMoved: (saturation, brightness) => root.pick(root.hue, saturation, brightness)
        }

        HueSlider {
            width: parent.width
            value: root.hue
            onMoved: root.pick(value, root.saturation, root.brightness)
        }

        Row {
            spacing: 6

            TextField {
                id: hex

                width: root.canSample ? 186 : 220
                accessibleName: "Hex"
                font: Theme.monospaced(12)
                onTextEdited: if (/^#?[0-9a-fA-F]{6}$/.test(text)) root.take("#" + text.replace("#", ""))

                Binding {
                    target: hex
                    property: "text"
                    value: root.color.toString().toUpperCase()
                    when: !hex.activeFocus
                }
            }

            Button {
                visible: root.canSample
                symbol: "eyedropper.full"
                help: "Pick Color from Screen"
                onClicked: root.sampleRequested()
            }
        }

        Grid {
            columns: 6
            columnSpacing: 8
            rowSpacing: 8

            Repeater {
                model: root.swatches.length > 0 ? root.swatches : root.samples
                delegate: ColorSample {
                    required property color modelData

                    color: modelData
                    chosen: Qt.colorEqual(modelData, root.color)
                    onClicked: root.take(modelData)
                }
            }
        }
    }
}
