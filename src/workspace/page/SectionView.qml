pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// One section of the page: its header, and its items or a hint. `viewTop` and `viewHeight` tell the
// strip that is seen, in its own coordinates; outside of it little exists. What is dropped within
// `margin` beside it is its own too.
FocusScope {
    id: root

    required property SectionModel section
    property bool reachable: false // the Tab key may come here next
    property real viewTop: 0
    property real viewHeight: 0
    property real margin: 8

    readonly property bool near: reachable || activeFocus || (viewTop < height + viewHeight && viewTop + 2 * viewHeight > 0)

    signal shifted(by: real)

    property TileMenu menu: null // made at its first opening

    function openMenu(tile: Tile, view: Item, at: point) {
        if (!menu)
            menu = tileMenu.createObject(root) as TileMenu;
        menu.show(tile, view, at);
    }

    // False without tiles.
    function focusFirst(): bool {
        return section.shown && flow.focusFirst();
    }

    implicitHeight: content.y + content.height
    visible: section.shown

    Accessible.role: Accessible.Grouping
    Accessible.name: section.name || "Untitled Section"

    LazyItem {
        id: header

        width: parent.width
        height: 28
        active: root.near
        sourceComponent: SectionHeader {
            section: root.section
        }
    }

    Item {
        id: content

        y: header.height + 10
        width: parent.width
        height: root.section.empty ? hint.height : flow.implicitHeight

        DropTarget {
            id: dropTarget

            anchors.fill: parent
            anchors.margins: -8
            anchors.leftMargin: -root.margin
            anchors.rightMargin: -root.margin
            section: root.section
        }

        // No higher than what can be seen of it, as it is drawn as a picture.
        LazyItem {
            readonly property real seenTop: root.viewTop - content.y - 40
            readonly property real seenBottom: seenTop + root.viewHeight + 80

            x: -8
            y: Math.max(dropTarget.y, seenTop)
            width: parent.width + 16
            height: Math.min(dropTarget.y + dropTarget.height, seenBottom) - y
            active: dropTarget.targeted
            sourceComponent: DropFrame {
                shown: true
            }
        }

        Label {
            id: hint

            readonly property string told: "Drop images here, or use ＋ to add colors, type, and more."

            visible: root.section.empty
            width: Math.min(parent.width, 680)
            padding: 18
            text: told.replace("＋", "+") // as most typefaces have no wide one
            font: Theme.callout
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
            Accessible.name: told
        }

        TileFlow {
            id: flow

            width: parent.width
            height: implicitHeight
            section: root.section
            viewTop: root.viewTop - content.y
            viewHeight: root.viewHeight
            reachable: root.near
            animated: !Motion.reduced
            tile: TileContainer {}
            block: BlockItemView {}
            onShifted: by => root.shifted(by)
            onMenuRequested: (tile, view, at) => root.openMenu(tile, view, at)

            Accessible.role: Accessible.List
            Accessible.name: root.Accessible.name
        }
    }

    Component {
        id: tileMenu

        TileMenu {}
    }
}
