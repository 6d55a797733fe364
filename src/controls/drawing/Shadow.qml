pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The soft shadow of a rounded rectangle: put it before its caster, anchored to it.
//   Shadow { anchors.fill: card; radius: card.radius; blur: 12; drop: 4 }
Item {
    id: root

    property int radius: Theme.cardRadius
    property int blur: 12 // radius of the softness
    property int drop: 4 // offset downwards
    property real strength: Theme.dark ? 0.5 : 0.2

    readonly property int extent: 2 * blur
    readonly property int stretchable: 2 * (radius + extent) + 1
    readonly property bool narrow: width < stretchable
    readonly property bool low: height < stretchable

    // Of the picture: its border is told in points, which one scene graph takes for the screen's
    // pixels and the software one for the picture's.
    readonly property real ratio: GraphicsInfo.api === GraphicsInfo.Software ? 1 : Screen.devicePixelRatio

    BorderImage {
        readonly property string size: (root.narrow ? Math.round(root.width) : 0) + "/"
                                       + (root.low ? Math.round(root.height) : 0)

        x: -root.extent
        y: -root.extent + root.drop
        width: root.width + 2 * root.extent
        height: root.height + 2 * root.extent
        visible: root.width > 0 && root.height > 0
        border {
            left: root.narrow ? 0 : root.radius + 2 * root.extent
            right: border.left
            top: root.low ? 0 : root.radius + 2 * root.extent
            bottom: border.top
        }
        source: visible ? "image://tarnloft-shadow/" + root.radius + "/" + root.blur + "/"
                          + Math.round(root.strength * 100) + "/" + size + "/"
                          + Math.round(root.ratio * 100) : ""
    }
}
