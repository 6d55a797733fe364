pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A slider with its value in words at its end.
//   FiguredSlider { accessibleName: "Angle"; to: 360; value: …; figure: value + "°"; onMoved: value => … }
Item {
    id: root

    property alias accessibleName: slider.accessibleName
    property alias from: slider.from
    property alias to: slider.to
    property alias stepSize: slider.stepSize
    required property real value
    required property string figure

    signal moved(value: real)

    implicitWidth: 200
    implicitHeight: Math.max(slider.height, 26)

    Slider {
        id: slider

        anchors.left: parent.left
        anchors.right: told.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        snapMode: Slider.NoSnap
        onMoved: root.moved(value)

        Binding on value {
            value: root.value
        }
    }

    Label {
        id: told

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 40
        text: root.figure
        color: Theme.secondaryLabel
        horizontalAlignment: Text.AlignRight
    }
}
