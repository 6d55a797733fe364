pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A row of text between tiles: a heading or a paragraph, edited in place. It is dragged by the grip
// in front of it and by all of it that isn't text.
FocusScope {
    id: root

    required property Tile tile

    readonly property bool isHeading: tile.kind === TileKind.Header
    readonly property real textWidth: Math.min(field.width, field.item?.implicitWidth ?? 0)
    readonly property real lineHeight: paragraph ? paragraph.contentHeight / paragraph.lineCount : height - above
    readonly property int longestLine: 680 // longer ones are hard to read
    readonly property int above: isHeading ? 10 : 0 // so that it stands nearer to what it heads
    readonly property LineField heading: field.item as LineField
    readonly property TextArea paragraph: field.item as TextArea
    readonly property bool held: gripDrag.active || restDrag.active

    function typeAtEnd() {
        field.item.forceActiveFocus(Qt.MouseFocusReason);
        if (heading)
            heading.cursorPosition = heading.length;
        if (paragraph)
            paragraph.cursorPosition = paragraph.length;
    }

    implicitHeight: above + field.implicitHeight
    opacity: tile.dragged ? 0.45 : 1

    DropTarget {
        id: dropTarget

        y: -14
        width: parent.width
        height: parent.height + 14
        section: root.tile.section
        tile: root.tile
    }

    // In the middle of the gap, on whole points.
    InsertionBar {
        y: -8
        width: parent.width
        flat: true
        shown: dropTarget.targeted
    }

    LazyItem {
        x: -6
        y: root.above - 5
        width: field.width + 12
        height: root.height - root.above + 10
        active: root.tile.selected
        sourceComponent: RoundedRectangle {
            radius: Theme.fieldRadius
            color: Theme.thin(Theme.accent, 0.1)
            edgeWidth: 2
            edgeColor: Theme.accent
        }
    }

    // What is carried: the text, with a little room around it.
    Item {
        id: words

        x: -8
        y: root.above - 4
        width: root.textWidth + 16
        height: root.height - root.above + 8

        RoundedRectangle {
            anchors.fill: parent
            visible: root.held
            color: Theme.controlBackground
            edgeWidth: 1
            edgeColor: Theme.panelBorder
            radius: Theme.fieldRadius
        }

        LazyItem {
            id: field

            x: 8
            y: 4
            width: Math.min(root.width - 24, root.longestLine)
            focus: true
            sourceComponent: root.isHeading ? headingField : textField
        }
    }

    // The row beside its text; a click there goes into the text.
    Item {
        x: root.textWidth + 8
        width: parent.width - x
        height: parent.height

        PlainTap {
            onClicked: root.typeAtEnd()
        }

        TileDragHandler {
            id: restDrag

            tile: root.tile
            view: words
            radius: Theme.fieldRadius
        }
    }

    // The row and the margin in front of it, where the grip is.
    Item {
        x: -22
        width: parent.width + 22
        height: parent.height

        HoverHandler {
            id: hover
        }

        RowGrip {
            x: 2
            y: root.above + Math.round((root.lineHeight - height) / 2)
            shown: hover.hovered && !root.held

            TileDragHandler {
                id: gripDrag

                tile: root.tile
                view: words
                radius: Theme.fieldRadius
            }
        }
    }

    LazyItem {
        x: field.width + 24 - width
        y: root.above + Math.round((root.lineHeight - height) / 2)
        active: (hover.hovered || root.activeFocus) && !root.held
        sourceComponent: Button {
            kind: Button.Plain
            symbol: "xmark.circle.fill"
            help: root.isHeading ? "Delete heading" : "Delete text"
            tint: Theme.secondaryLabel
            onClicked: root.tile.block.remove()
        }
    }

    Component {
        id: headingField

        LineField {
            placeholderText: "Heading"
            text: root.tile.block.text
            font: root.tile.block.level === 1 ? Theme.font(17, Font.Bold)
                : root.tile.block.level === 2 ? Theme.font(15, Font.DemiBold) : Theme.headline
            onTextEdited: root.tile.block.setText(text)
            Accessible.selectable: true
            Accessible.selected: root.tile.selected
        }
    }

    Component {
        id: textField

        TextArea {
            placeholderText: "Text"
            whole: root.tile.block.text
            color: Theme.secondaryLabel
            onEdited: text => root.tile.block.setText(text)
            Accessible.selectable: true
            Accessible.selected: root.tile.selected
        }
    }
}
