pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures

// A file's small picture on its backdrop, in a rounded frame.
//   MiniThumb { width: 66; height: 50; thumbnails: …; path: …; backdrop: Backdrop.White }
RoundedRectangle {
    id: root

    required property Thumbnails thumbnails
    property string path: ""
    property int backdrop: Backdrop.Default

    radius: 6
    color: BackdropColor.of(backdrop, Theme.windowBackground)

    LazyItem {
        anchors.fill: parent
        active: root.backdrop === Backdrop.Checkerboard
        sourceComponent: CheckerboardView {
            radius: root.radius
        }
    }

    Symbol {
        anchors.centerIn: parent
        visible: picture.state !== ThumbnailView.Loaded
        name: "photo"
        size: 12
        color: root.backdrop === Backdrop.Dark ? Qt.rgba(1, 1, 1, 0.3) : root.backdrop === Backdrop.Default ? Theme.quaternaryLabel : Qt.rgba(0, 0, 0, 0.3)
    }

    ThumbnailView {
        id: picture

        anchors.fill: parent
        anchors.margins: 3
        thumbnails: root.thumbnails
        path: root.path
        maxPixel: 256
    }

    // Over a checkerboard too.
    RoundedRectangle {
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
        edgeWidth: 1
        edgeColor: Theme.thin(Theme.primary, 0.1)
    }
}
