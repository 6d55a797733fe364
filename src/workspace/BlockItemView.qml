pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Workspace

// A row of text between tiles: a heading or a paragraph, edited in place.
FocusScope {
    id: root

    required property Tile tile

    readonly property bool isHeading: tile.kind === TileKind.Header

    implicitHeight: field.implicitHeight

    DropTarget {
        id: dropTarget

        y: -14
        width: parent.width
        height: parent.height + 14
        section: root.tile.section
        tile: root.tile
    }

    InsertionBar {
        y: -7 - height / 2
        width: parent.width
        flat: true
        shown: dropTarget.targeted
    }

    LazyItem {
        id: field

        width: parent.width - 24
        focus: true
        sourceComponent: root.isHeading ? heading : paragraph
    }

    Component {
        id: heading

        TextField {
            bordered: false
            placeholderText: "Heading"
            text: root.tile.text
            font: root.tile.level === 1 ? Theme.font(17, Font.Bold)
                : root.tile.level === 2 ? Theme.font(15, Font.DemiBold) : Theme.headline
            onTextEdited: root.tile.setText(text)
        }
    }

    Component {
        id: paragraph

        TextArea {
            placeholderText: "Text"
            text: root.tile.text
            color: Theme.secondaryLabel
            onEdited: root.tile.setText(text)
        }
    }

    HoverHandler {
        id: hover
    }

    LazyItem {
        anchors.right: parent.right
        active: hover.hovered || activeFocus
        sourceComponent: Button {
            kind: Button.Plain
            symbol: "xmark.circle.fill"
            help: root.isHeading ? "Delete heading" : "Delete text"
            tint: Theme.secondaryLabel
            onClicked: root.tile.remove()
        }
    }
}
