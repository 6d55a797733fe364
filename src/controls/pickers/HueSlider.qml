pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A hue from 0 to 1 on a strip of all of them.
T.Slider {
    id: root

    implicitHeight: 18
    padding: 0
    stepSize: 0
    Accessible.role: Accessible.Slider
    Accessible.name: "Hue " + Math.round(value * 360) + "°"
    Accessible.onIncreaseAction: { increase(); moved(); }
    Accessible.onDecreaseAction: { decrease(); moved(); }

    background: RoundedRectangle {
        y: 3
        width: root.width
        height: 12
        color: "transparent"
        edgeWidth: 1
        edgeColor: Theme.thin(Theme.primary, 0.14)

        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: "#f00" }
                GradientStop { position: 0.1667; color: "#ff0" }
                GradientStop { position: 0.3333; color: "#0f0" }
                GradientStop { position: 0.5; color: "#0ff" }
                GradientStop { position: 0.6667; color: "#00f" }
                GradientStop { position: 0.8333; color: "#f0f" }
                GradientStop { position: 1; color: "#f00" }
            }
        }
    }

    handle: RoundedRectangle {
        x: root.visualPosition * (root.width - width)
        width: 18
        height: 18
        radius: 9
        color: Qt.hsva(root.value, 1, 1, 1)
        edgeWidth: 2
        edgeColor: "white"

        RoundedRectangle {
            anchors.fill: parent
            anchors.margins: -1
            radius: width / 2
            color: "transparent"
            edgeWidth: 1
            edgeColor: Qt.rgba(0, 0, 0, 0.3)
        }

        FocusRing {
            shown: root.visualFocus
            base: 9
            gap: 1
        }
    }
}
