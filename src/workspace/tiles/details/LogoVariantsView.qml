pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// The files of a logo set side by side, each of which can be dragged out.
Grid {
    id: root

    required property LogoFacet logo
    required property Thumbnails thumbnails

    readonly property real columnWidth: Math.floor((width - (columns - 1) * spacing) / columns)

    columns: logo.columns(width)
    spacing: 8

    Repeater {
        model: root.logo.variants
        delegate: Item {
            id: variant

            required property int index
            required property string label
            required property string path
            required property int backdrop

            width: root.columnWidth
            height: 54

            MiniThumb {
                id: thumb

                width: parent.width
                height: 40
                thumbnails: root.thumbnails
                path: variant.path
                backdrop: variant.backdrop

                HoverHandler {
                    id: hover

                    cursorShape: Qt.OpenHandCursor
                }

                DragOutHandler {
                    id: drag

                    view: thumb
                    radius: thumb.radius
                    onCarried: grabbed => root.logo.drag(variant.index, thumb, grabbed, thumb.radius)
                }

                Help {
                    text: "Drag to use this file"
                    shown: hover.hovered && !drag.active
                }
            }

            Label {
                y: 42
                width: parent.width
                height: 12
                text: variant.label
                font: Theme.font(9)
                color: Theme.secondaryLabel
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
