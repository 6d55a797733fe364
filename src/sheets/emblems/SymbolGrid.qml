pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Sheets

// Symbols to choose one of: found by typing, gone through by the arrow keys.
FocusScope {
    id: root

    required property EmblemPicker picker

    function choose(index: int) {
        if (index < 0 || index >= grid.count)
            return;
        grid.currentIndex = index;
        picker.symbol = picker.symbols[index];
    }

    // The chosen one, or the first.
    function enter() {
        grid.currentIndex = Math.max(0, picker.symbolRow());
        grid.positionViewAtIndex(grid.currentIndex, GridView.Contain);
    }

    implicitHeight: 288

    SearchField {
        id: search

        width: parent.width
        focus: true
        placeholderText: "Search symbols"
        accessibleName: "Search symbols"
        text: root.picker.query
        onTextEdited: {
            root.picker.query = text;
            grid.currentIndex = 0;
        }
        Keys.onDownPressed: if (grid.count > 0) grid.forceActiveFocus(Qt.TabFocusReason)
        Keys.onReturnPressed: event => {
            event.accepted = text !== "" && grid.count > 0;
            if (event.accepted)
                root.choose(grid.currentIndex);
        }
    }

    GridView {
        id: grid

        readonly property int columns: Math.max(1, Math.floor(width / 40))

        y: search.height + 8
        width: parent.width
        height: parent.height - y
        cellWidth: Math.floor(width / columns)
        cellHeight: 40
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: false // an arrow chooses as well
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0
        model: root.picker.symbols
        Accessible.role: Accessible.List
        Accessible.name: "Symbols"

        Keys.onPressed: event => {
            const step = {
                [Qt.Key_Left]: -1,
                [Qt.Key_Right]: 1,
                [Qt.Key_Up]: -columns,
                [Qt.Key_Down]: columns,
                [Qt.Key_PageUp]: -columns * 5,
                [Qt.Key_PageDown]: columns * 5,
                [Qt.Key_Home]: -count,
                [Qt.Key_End]: count
            }[event.key] ?? 0;
            if (step === 0) {
                if (event.text.trim() === "" || event.modifiers & (Qt.ControlModifier | Qt.AltModifier))
                    return;
                search.forceActiveFocus(Qt.TabFocusReason); // typing goes on searching
                search.text += event.text;
                search.textEdited();
            } else if (event.key === Qt.Key_Up && currentIndex < columns) {
                search.forceActiveFocus(Qt.TabFocusReason);
            } else {
                root.choose(Math.max(0, Math.min(count - 1, currentIndex + step)));
            }
            event.accepted = true;
        }
        Keys.onSpacePressed: root.choose(currentIndex)

        T.ScrollBar.vertical: ScrollBar {}

        WheelScroll {
            flickable: grid
        }

        delegate: Item {
            id: cell

            required property string modelData
            required property int index
            readonly property bool chosen: modelData === root.picker.symbol

            width: grid.cellWidth
            height: grid.cellHeight
            Accessible.role: Accessible.RadioButton
            Accessible.name: root.picker.spoken(modelData)
            Accessible.checkable: true
            Accessible.checked: chosen
            Accessible.onPressAction: root.choose(index)

            LazyItem {
                anchors.fill: parent
                anchors.margins: 2
                active: cell.chosen || hover.hovered || cell.GridView.isCurrentItem && grid.activeFocus
                sourceComponent: RoundedRectangle {
                    radius: 8
                    color: cell.chosen ? Theme.accent : Theme.thin(Theme.primary, hover.hovered ? 0.08 : 0)

                    FocusRing {
                        shown: cell.GridView.isCurrentItem && grid.activeFocus && FocusOrigin.keyboard
                        base: 8
                        gap: -2
                    }
                }
            }

            Symbol {
                anchors.centerIn: parent
                name: cell.modelData
                size: 17
                color: cell.chosen ? Theme.onAccent : Theme.label
            }

            HoverHandler {
                id: hover
            }

            TapHandler {
                onTapped: {
                    grid.forceActiveFocus(Qt.MouseFocusReason);
                    root.choose(cell.index);
                }
            }

            LazyItem {
                anchors.fill: parent
                active: hover.hovered
                sourceComponent: Help {
                    text: root.picker.spoken(cell.modelData)
                    shown: hover.hovered
                }
            }
        }
    }

    EmptyState {
        anchors.centerIn: grid
        width: grid.width - 40
        visible: grid.count === 0
        symbol: "magnifyingglass"
        title: "No matches"
        message: "Try a different search."
    }

    Component.onCompleted: enter()
}
