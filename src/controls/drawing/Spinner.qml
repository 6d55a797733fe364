pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Something is on its way and nobody knows how long it takes.
//   Spinner { running: … }
Item {
    id: root

    property bool running: true
    property color color: Theme.secondaryLabel
    property int step: 0

    readonly property int spokes: 8

    implicitWidth: 16
    implicitHeight: 16
    visible: running

    Accessible.role: Accessible.Indicator
    Accessible.name: "In progress"
    Accessible.ignored: !running

    Timer {
        interval: 100
        repeat: true
        running: root.running && root.visible
        onTriggered: root.step = (root.step + 1) % root.spokes
    }

    Repeater {
        model: root.spokes
        delegate: Item {
            id: spoke

            required property int index

            anchors.fill: parent
            rotation: index * 360 / root.spokes
            opacity: 0.18 + 0.82 * ((index - root.step + root.spokes) % root.spokes) / (root.spokes - 1)

            RoundedRectangle {
                anchors.horizontalCenter: parent.horizontalCenter
                width: Math.max(2, root.width / 8)
                height: root.height * 0.29
                radius: width / 2
                color: root.color
            }
        }
    }
}
