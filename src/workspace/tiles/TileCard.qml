pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// The card of a tile, with its kind's content and the badge of its notes.
Card {
    id: root

    required property Tile tile
    property bool resting: false // it shows nothing of the pointer

    property bool expanded: false // it tells all of its item

    property real captionHeight: 0 // of what stands beneath it and belongs to it
    property bool helped: false

    readonly property bool hovering: hover.hovered && !resting
    readonly property bool failed: (content.item as ImageTileContent)?.failed ?? false
    // What its content asks for.
    readonly property real naturalHeight: Math.max(tile.workspace.tileHeight, expanded ? content.item?.implicitHeight ?? 0 : 0)
    readonly property string help: failed ? tile.picture.failureHelp : tile.help

    onHoveringChanged: if (hovering && help !== "") helped = true
    selected: tile.selected
    color: {
        switch (tile.kind) {
        case TileKind.Color:
            return tile.swatch.color;
        case TileKind.Gradient:
            return "transparent";
        case TileKind.Video:
            return Qt.rgba(0, 0, 0, 0.85);
        case TileKind.Font:
        case TileKind.Code:
            return Theme.textBackground;
        default:
            return BackdropColor.of(tile.picture?.backdrop ?? Backdrop.Default, Theme.windowBackground);
        }
    }

    LazyItem {
        id: content

        anchors.fill: parent
        enabled: root.failed || root.expanded // else there is nothing in it for the pointer
        sourceComponent: {
            switch (root.tile.kind) {
            case TileKind.Color:
                return root.expanded ? wholeColor : color;
            case TileKind.Gradient:
                return gradient;
            case TileKind.Video:
                return video;
            case TileKind.Font:
                return font;
            case TileKind.Code:
                return code;
            default:
                return image;
            }
        }
    }

    Component { id: wholeColor; ExpandedColorContent { swatch: root.tile.swatch; swatchHeight: root.tile.workspace.tileHeight; hovering: root.hovering } }
    Component { id: color; ColorTileContent { swatch: root.tile.swatch; hovering: root.hovering } }
    Component { id: gradient; GradientTileContent { facet: root.tile.gradient } }
    Component { id: image; ImageTileContent { facet: root.tile.picture; thumbnails: root.tile.workspace.thumbnails } }
    Component { id: video; VideoTileContent { clip: root.tile.clip; posters: root.tile.workspace.posters } }
    Component { id: font; FontTileContent { face: root.tile.font } }
    Component { id: code; CodeTileContent { code: root.tile.code; whole: root.expanded } }

    HoverHandler {
        id: hover
    }

    // It stays once it was wanted, for a tip needs time to fade.
    LazyItem {
        anchors.fill: parent
        active: root.helped
        sourceComponent: Help {
            text: root.help
            below: root.captionHeight
            shown: root.hovering && !notesHover.hovered // which has a help of its own
        }
    }

    LazyItem {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 5
        active: (root.tile.logo?.variantCount ?? 0) > 1
        sourceComponent: Badge {
            symbol: "square.stack.3d.up.fill"
            text: root.tile.logo.variantCount
            kind: Badge.Dark
            font: Theme.font(10, Font.Bold)
            Accessible.ignored: true // the tile's own description counts them
        }
    }

    LazyItem {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 5
        active: root.tile.hasNotes
        sourceComponent: Badge {
            symbol: "checklist"
            kind: Badge.Dark
            help: "Has usage notes"
        }

        HoverHandler {
            id: notesHover
        }
    }
}
