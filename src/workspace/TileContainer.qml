pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Workspace

// One tile of the grid: its content in a card, with its name beneath.
Item {
    id: root

    required property Tile tile

    readonly property bool focused: activeFocus && FocusOrigin.keyboard
    readonly property bool hovering: hover.hovered && !tile.dragged

    Accessible.role: Accessible.ListItem
    Accessible.name: tile.name
    Accessible.description: tile.description
    Accessible.focusable: true
    Accessible.selectable: true
    Accessible.selected: tile.selected
    Accessible.onPressAction: tile.click()
    Accessible.onToggleAction: tile.toggleSelected()

    Keys.onSpacePressed: event => root.tile.click(event.modifiers)
    Keys.onReturnPressed: event => root.tile.click(event.modifiers)
    Keys.onEnterPressed: event => root.tile.click(event.modifiers)

    // With the gap in front of the tile, so that there is no place between two.
    DropTarget {
        id: dropTarget

        x: -14
        width: parent.width + 14
        height: parent.height
        section: root.tile.section
        tile: root.tile
    }

    TileCard {
        id: card

        width: parent.width
        height: root.tile.workspace.tileHeight
        tile: root.tile
        hovering: root.hovering

        FocusRing {
            shown: root.focused
            base: Theme.cardRadius
        }

        HoverHandler {
            id: cardHover
        }
    }

    Label {
        y: card.height + 6
        width: parent.width
        height: 16
        text: root.tile.name
        font: Theme.font(12, Font.Medium)
        Accessible.ignored: true
    }

    Label {
        y: card.height + 22
        width: parent.width
        height: 14
        visible: text !== ""
        text: root.tile.subcaption
        font: Theme.subheadline
        color: Theme.secondaryLabel
        Accessible.ignored: true
    }

    InsertionBar {
        x: -7 - width / 2
        height: card.height
        shown: dropTarget.targeted
    }

    LazyItem {
        x: 6
        y: 6
        active: root.hovering || root.tile.selected || root.tile.sectionSelected || root.focused
        sourceComponent: SelectionMark {
            selected: root.tile.selected
            checkable: true // which makes it a check box for assistive technology
            checked: root.tile.selected
            focusPolicy: Qt.NoFocus // Control and Space do the same
            onClicked: root.tile.toggleSelected()
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        onTapped: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.tile.click(Number(tap.point.modifiers));
        }
    }

    DragHandler {
        target: null
        onActiveChanged: if (active) root.tile.drag(card, card.mapFromItem(root, centroid.pressPosition));
    }

    LazyItem {
        anchors.fill: card
        active: root.hovering && root.tile.help !== ""
        sourceComponent: Help {
            text: root.tile.help
            shown: cardHover.hovered
        }
    }
}
