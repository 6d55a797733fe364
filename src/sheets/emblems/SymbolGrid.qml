pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// Symbols to choose one of: found by typing, gone through by the arrow keys.
FocusScope {
    id: root

    required property EmblemPicker picker

    readonly property int count: picker.symbols.length
    readonly property int hovered: hover.hovered ? board.placeAt(hover.point.position) : -1

    function goTo(place: int) {
        board.current = place;
        const cell = board.cell(place);
        if (cell.y < scroll.contentY)
            scroll.contentY = cell.y;
        else if (cell.y + cell.height > scroll.contentY + scroll.height)
            scroll.contentY = cell.y + cell.height - scroll.height;
    }

    function choose(place: int) {
        if (place < 0 || place >= count)
            return;
        goTo(place);
        picker.symbol = picker.symbols[place];
    }

    function search(text: string) {
        picker.query = text;
        goTo(0);
    }

    implicitHeight: 288

    SearchField {
        id: field

        width: parent.width
        focus: true
        placeholderText: "Search symbols"
        accessibleName: "Search symbols"
        text: root.picker.query
        onTextEdited: root.search(text)
        Keys.onDownPressed: if (root.count > 0) board.forceActiveFocus(Qt.TabFocusReason)
        Keys.onReturnPressed: event => {
            event.accepted = text !== "" && root.count > 0;
            if (event.accepted)
                root.choose(board.current);
        }
    }

    ScrollArea {
        id: scroll

        y: field.height + 8
        width: parent.width
        height: parent.height - y
        contentHeight: board.contentHeight
        followsFocus: false

        // Of the chosen one, under all.
        SymbolGround {
            cell: board.chosenCell
            visible: board.chosen >= 0
            color: Theme.accent
        }

        // Of the one under the pointer.
        SymbolGround {
            cell: board.cell(root.hovered)
            visible: root.hovered >= 0 && root.hovered !== board.chosen
            color: Theme.thin(Theme.primary, 0.08)

            Help {
                text: parent.visible ? root.picker.spoken(root.picker.symbols[root.hovered] ?? "") : ""
                shown: parent.visible
            }
        }

        // Of the one that the keyboard is at.
        SymbolGround {
            cell: board.currentCell
            color: "transparent"

            FocusRing {
                shown: board.activeFocus && FocusOrigin.keyboard && root.count > 0
                base: parent.radius
            }
        }

        SymbolBoard {
            id: board

            y: scroll.contentY // it stands still
            width: scroll.width
            height: scroll.height
            symbols: root.picker.symbols
            chosen: root.picker.symbolPlace
            scrolled: scroll.contentY
            activeFocusOnTab: true
            onPressed: place => root.choose(place)
            Accessible.role: Accessible.List

            Keys.onPressed: event => {
                const step = {
                    [Qt.Key_Left]: -1,
                    [Qt.Key_Right]: 1,
                    [Qt.Key_Up]: -columns,
                    [Qt.Key_Down]: columns,
                    [Qt.Key_PageUp]: -columns * 5,
                    [Qt.Key_PageDown]: columns * 5,
                    [Qt.Key_Home]: -root.count,
                    [Qt.Key_End]: root.count
                }[event.key] ?? 0;
                if (step === 0) {
                    if (!KeyText.writes(event.text, event.modifiers))
                        return;
                    field.forceActiveFocus(Qt.TabFocusReason); // typing goes on searching
                    root.search(field.text + event.text);
                } else if (event.key === Qt.Key_Up && current < columns) {
                    field.forceActiveFocus(Qt.TabFocusReason);
                } else {
                    root.choose(Math.max(0, Math.min(root.count - 1, current + step)));
                }
                event.accepted = true;
            }
            Keys.onSpacePressed: root.choose(current)

            HoverHandler {
                id: hover
            }

            PlainTap {
                onClicked: {
                    board.forceActiveFocus(Qt.MouseFocusReason);
                    root.choose(board.placeAt(point.position));
                }
            }
        }
    }

    LazyItem {
        anchors.centerIn: scroll
        width: scroll.width - 40
        active: root.count === 0
        sourceComponent: EmptyState {
            symbol: "magnifyingglass"
            title: "No matches"
            message: "Try a different search."
        }
    }

    Component.onCompleted: goTo(Math.max(0, picker.symbolPlace)) // the chosen one, or the first
}
