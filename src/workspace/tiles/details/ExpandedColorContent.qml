pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A swatch, and under it on the card's ground what there is to tell of the colour. The card has the
// swatch's colour.
Item {
    id: root

    required property ColorFacet swatch
    required property real swatchHeight
    property bool hovering: false

    implicitHeight: swatchHeight + lines.height + 20

    RoundedRectangle {
        y: root.swatchHeight
        width: parent.width
        height: parent.height - y
        radius: Theme.cardRadius
        color: Theme.controlBackground
    }

    // The ground's upper corners aren't round.
    Rectangle {
        y: root.swatchHeight
        width: parent.width
        height: Theme.cardRadius
        color: Theme.controlBackground
    }

    ColorTileContent {
        width: parent.width
        height: root.swatchHeight
        swatch: root.swatch
        hovering: root.hovering
    }

    ColorDetailLines {
        id: lines

        x: 10
        y: root.swatchHeight + 10
        width: parent.width - 20
        swatch: root.swatch
    }
}
