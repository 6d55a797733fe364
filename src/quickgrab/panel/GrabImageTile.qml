pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.QuickGrab

// A logo or an image over its name; a drag takes its file out.
Item {
    id: root

    required property grabThing thing
    required property QuickGrab grab
    required property bool hovered
    required property bool marked

    Item {
        id: tile

        width: parent.width
        height: 58

        // Opaque, since it is carried away; on the backdrop that was chosen for the picture, so that
        // white marks are seen here too.
        RoundedRectangle {
            anchors.fill: parent
            radius: 8
            color: BackdropColor.of(root.thing.backdrop, Theme.menuBackground)
        }

        LazyItem {
            anchors.fill: parent
            active: root.thing.backdrop === Backdrop.Checkerboard
            sourceComponent: CheckerboardView {
                radius: 8
            }
        }

        RoundedRectangle {
            anchors.fill: parent
            radius: 8
            color: Theme.thin(Theme.primary, root.hovered ? 0.08 : 0.05)
            edgeWidth: 0.5
            edgeColor: Theme.thin(Theme.primary, root.hovered ? 0.2 : 0.08)
        }

        LazyItem {
            anchors.centerIn: parent
            active: picture.state !== ThumbnailView.Loaded
            sourceComponent: Symbol {
                name: "photo"
                size: 16
                color: Theme.quaternaryLabel
            }
        }

        ThumbnailView {
            id: picture

            anchors.fill: parent
            anchors.margins: 6
            thumbnails: root.grab.thumbnails
            path: root.thing.source
            maxPixel: 160
        }

        FocusRing {
            shown: root.marked
            base: 8
        }

        HoverHandler {
            cursorShape: Qt.OpenHandCursor
        }

        DragOutHandler {
            view: tile
            radius: 8
            onCarried: grabbed => root.grab.drag(root.thing.place, tile, grabbed, 8)
        }
    }

    Label {
        y: 62
        width: parent.width
        height: 14
        text: root.thing.name
        font: Theme.font(10)
        horizontalAlignment: implicitWidth > width ? Text.AlignLeft : Text.AlignHCenter
        Accessible.ignored: true
    }
}
