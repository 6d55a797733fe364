pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Marks an area as the target of the drag that hovers over it.
//   DropFrame { anchors.fill: parent; shown: dropArea.containsDrag }
Item {
    id: root

    required property bool shown
    property int radius: 12

    visible: shown
    Accessible.ignored: true

    RoundedRectangle {
        anchors.fill: parent
        radius: root.radius
        color: Theme.thin(Theme.accent, 0.08)
    }

    DashedFrame {
        anchors.fill: parent
        anchors.margins: 0.5
        radius: root.radius
        color: Theme.accent
        thickness: 2
        dash: 10
    }
}
