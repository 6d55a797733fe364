pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Saturation across and brightness upwards, of one hue. Arrows move by a hundredth, with Shift by a
// tenth.
Rectangle {
    id: root

    required property real hue
    required property real saturation
    required property real brightness

    signal moved(saturation: real, brightness: real)

    function move(s: real, v: real) {
        moved(Math.max(0, Math.min(1, s)), Math.max(0, Math.min(1, v)));
    }

    implicitHeight: 132
    activeFocusOnTab: true
    color: Qt.hsva(hue, 1, 1, 1)
    Accessible.role: Accessible.Slider
    Accessible.name: "Saturation " + Math.round(saturation * 100) + "%, brightness " + Math.round(brightness * 100) + "%"

    Keys.onPressed: event => {
        const step = event.modifiers & Qt.ShiftModifier ? 0.1 : 0.01;
        const across = event.key === Qt.Key_Left ? -step : event.key === Qt.Key_Right ? step : 0;
        const up = event.key === Qt.Key_Down ? -step : event.key === Qt.Key_Up ? step : 0;
        event.accepted = across !== 0 || up !== 0;
        if (event.accepted)
            move(saturation + across, brightness + up);
    }

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "white" }
            GradientStop { position: 1; color: Qt.rgba(1, 1, 1, 0) }
        }
    }

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop { position: 0; color: Qt.rgba(0, 0, 0, 0) }
            GradientStop { position: 1; color: "black" }
        }
    }

    RoundedRectangle {
        anchors.fill: parent
        color: "transparent"
        edgeWidth: 1
        edgeColor: Theme.thin(Theme.primary, 0.14)
    }

    RoundedRectangle {
        x: root.saturation * root.width - width / 2
        y: (1 - root.brightness) * root.height - height / 2
        width: 14
        height: 14
        radius: 7
        color: Qt.hsva(root.hue, root.saturation, root.brightness, 1)
        edgeWidth: 2
        edgeColor: "white"

        RoundedRectangle {
            anchors.fill: parent
            anchors.margins: -1
            radius: width / 2
            color: "transparent"
            edgeWidth: 1
            edgeColor: Qt.rgba(0, 0, 0, 0.35)
        }
    }

    FocusRing {
        shown: root.activeFocus && FocusOrigin.keyboard
        base: 0
    }

    MouseArea {
        function report(mouse: MouseEvent) {
            root.move(mouse.x / width, 1 - mouse.y / height);
        }

        anchors.fill: parent
        preventStealing: true
        onPressed: mouse => report(mouse)
        onPositionChanged: mouse => report(mouse)
    }
}
