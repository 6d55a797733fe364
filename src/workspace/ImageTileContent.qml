pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Workspace

// A picture, fitted into the card; without one a symbol, and for a broken file a word about it.
Item {
    id: root

    required property Tile tile

    LazyItem {
        anchors.fill: parent
        active: root.tile.backdrop === TileKind.Checkerboard
        sourceComponent: CheckerboardView {}
    }

    ThumbnailView {
        id: picture

        anchors.fill: parent
        anchors.margins: 4
        thumbnails: root.tile.workspace.thumbnails
        path: root.tile.path
    }

    LazyItem {
        anchors.centerIn: parent
        active: picture.state === ThumbnailView.Loading
        sourceComponent: Symbol {
            name: "photo"
            size: 20
            color: Theme.quaternaryLabel
        }
    }

    LazyItem {
        anchors.fill: parent
        active: picture.state === ThumbnailView.Failed
        sourceComponent: FailedPicture {
            help: root.tile.failureHelp
        }
    }
}
