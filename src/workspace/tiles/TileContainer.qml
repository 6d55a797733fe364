pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// One tile of the grid: its content in a card, with its name beneath.
Item {
    id: root

    required property Tile tile

    readonly property bool expanded: tile.workspace.expanded
    // An expanded colour's card tells its name as well.
    readonly property real captionHeight: expanded && tile.kind === TileKind.Color ? 0 : tile.subcaption === "" ? 22 : 36
    readonly property bool focused: activeFocus && FocusOrigin.keyboard
    readonly property bool pressed: tap.pressed || drag.active
    readonly property bool dragged: drag.active || tile.dragged
    readonly property bool hovering: (hover.hovered || tile.menuOpen) && !dragged

    implicitHeight: card.height + captionHeight + (detail.height > 0 ? 8 + detail.height : 0)
    opacity: tile.dragged ? 0.45 : 1

    Accessible.role: Accessible.ListItem
    Accessible.name: tile.name || tile.description
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
        height: naturalHeight
        tile: root.tile
        expanded: root.expanded
        resting: root.dragged
        captionHeight: root.captionHeight

        FocusRing {
            shown: root.focused
            base: Theme.cardRadius
            gap: 2 // beside the stroke of a selected one
        }
    }

    Label {
        y: card.height + 6
        width: parent.width
        height: 16
        visible: root.captionHeight > 0
        enabled: false
        text: root.tile.name
        horizontalAlignment: Text.AlignLeft // of right-to-left names too, under the card's edge
        font: Theme.font(12, Font.Medium)
        Accessible.ignored: true
    }

    Label {
        y: card.height + 22
        width: parent.width
        height: 14
        visible: root.captionHeight > 22
        enabled: false
        text: root.tile.subcaption
        horizontalAlignment: Text.AlignLeft
        font: Theme.subheadline
        color: Theme.secondaryLabel
        Accessible.ignored: true
    }

    LazyItem {
        id: detail

        y: card.height + root.captionHeight + 8
        width: parent.width
        active: root.expanded
        sourceComponent: SpecBlock {
            tile: root.tile
        }
    }

    // In the middle of the gap, on whole points.
    InsertionBar {
        x: -8
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

    PlainTap {
        id: tap

        onClicked: modifiers => {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.tile.click(modifiers);
        }
        onDoubleClicked: modifiers => root.tile.doubleClick(modifiers)
    }

    TileDragHandler {
        id: drag

        tile: root.tile
        view: card
        radius: Theme.cardRadius
    }
}
