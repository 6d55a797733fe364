pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What floats above the window: a fill with a fine edge and a shadow.
Item {
    id: root

    property color color: Theme.menuBackground
    property color edge: Theme.panelBorder
    property int radius: Theme.cardRadius
    property int blur: 14
    property int drop: 6

    Shadow {
        anchors.fill: parent
        radius: root.radius
        blur: root.blur
        drop: root.drop
        strength: Theme.dark ? 0.5 : 0.2
    }

    RoundedRectangle {
        anchors.fill: parent
        radius: root.radius
        color: root.color
        edgeWidth: 1
        edgeColor: root.edge
    }
}
