pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// A picture, fitted into the card; without one a symbol, and for a broken file a word about it.
Item {
    id: root

    required property PictureFacet facet
    required property Thumbnails thumbnails

    readonly property bool failed: facet.present && (facet.path === "" || picture.state === ThumbnailView.Failed)
    readonly property bool loading: facet.path !== "" && picture.state === ThumbnailView.Loading

    // Marks stand on the backdrop, which is the theme's own only where none was chosen.
    readonly property bool themed: facet.backdrop === Backdrop.Default
    readonly property color ink: facet.backdrop === Backdrop.Dark ? "white" : "black"

    LazyItem {
        anchors.fill: parent
        active: root.facet.backdrop === Backdrop.Checkerboard
        sourceComponent: CheckerboardView {}
    }

    ThumbnailView {
        id: picture

        anchors.fill: parent
        anchors.margins: 4
        thumbnails: root.thumbnails
        path: root.facet.path
    }

    LazyItem {
        anchors.centerIn: parent
        active: root.loading || !root.facet.present
        sourceComponent: Symbol {
            name: root.facet.present ? "photo" : "square.stack.3d.up"
            size: 20
            color: root.themed ? Theme.quaternaryLabel : Theme.thin(root.ink, 0.3)
        }
    }

    LazyItem {
        anchors.fill: parent
        active: root.failed
        sourceComponent: FailedPicture {
            help: root.facet.failureHelp
            color: root.themed ? Theme.secondaryLabel : Theme.thin(root.ink, 0.8)
        }
    }
}
