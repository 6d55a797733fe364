pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The ground and edge of a tile. Content stands in it as children, under the edge.
//   Card { selected: …; ColorTile { anchors.fill: parent } }
Item {
    id: root

    property int radius: Theme.cardRadius
    property color color: Theme.controlBackground
    property bool selected: false
    default property alias content: holder.data

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.color
    }

    Item {
        id: holder

        anchors.fill: parent
    }

    Rectangle {
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
        border.width: root.selected ? 3 : 1
        border.color: root.selected ? Theme.accent : Theme.hairline
    }
}
