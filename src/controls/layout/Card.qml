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

    RoundedRectangle {
        anchors.fill: parent
        enabled: false
        radius: root.radius
        color: root.color
    }

    Item {
        id: holder

        anchors.fill: parent
    }

    // Ground inside the stroke, which would be lost on content of its colour.
    RoundedRectangle {
        anchors.fill: parent
        enabled: false
        anchors.margins: 2
        visible: root.selected
        radius: root.radius - 2
        color: "transparent"
        edgeWidth: 3
        edgeColor: Theme.windowBackground
    }

    RoundedRectangle {
        anchors.fill: parent
        enabled: false
        radius: root.radius
        color: "transparent"
        edgeWidth: root.selected ? 3 : 1
        edgeColor: root.selected ? Theme.accent : Theme.hairline
    }
}
