pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// What an expanded tile tells under its caption, by its kind.
LazyItem {
    id: root

    required property Tile tile

    sourceComponent: {
        switch (tile.kind) {
        case TileKind.Gradient:
            return gradient;
        case TileKind.Image:
            return image;
        case TileKind.Video:
            return video;
        case TileKind.Font:
            return font;
        case TileKind.Logo:
            return logo;
        default:
            return null;
        }
    }

    Component { id: gradient; GradientDetailView { facet: root.tile.gradient } }
    Component { id: image; AssetSpecView { specs: root.tile.workspace.specs; path: root.tile.picture.path } }
    Component { id: video; AssetSpecView { specs: root.tile.workspace.specs; path: root.tile.clip.path; kind: AssetSpecs.Video } }
    Component { id: font; FontSpecView { specs: root.tile.workspace.specs; face: root.tile.font } }
    Component { id: logo; LogoVariantsView { logo: root.tile.logo; thumbnails: root.tile.workspace.thumbnails } }
}
