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

    readonly property int hovered: hover.hovered ? placeAt(hover.point.position) : -1

    function leftOf(place: int): real {
        return place % grid.columns * grid.cellWidth;
    }

    function topOf(place: int): real {
        return Math.floor(place / grid.columns) * grid.cellHeight;
    }

    // Of a point in the grid as it is seen; -1 beside all.
    function placeAt(point: point): int {
        return grid.indexAt(point.x + grid.contentX, point.y + grid.contentY);
    }

    // The chosen one, or the first.
    function enter() {
        grid.currentIndex = Math.max(0, picker.symbolPlace);
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
        cacheBuffer: 0 // a row takes a millisecond
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

        // Of the chosen one, under all.
        RoundedRectangle {
            readonly property int place: root.picker.symbolPlace

            parent: grid.contentItem
            z: -1
            visible: place >= 0
            x: root.leftOf(place) + 2
            y: root.topOf(place) + 2
            width: grid.cellWidth - 4
            height: grid.cellHeight - 4
            radius: 8
            color: Theme.accent
        }

        // Of the one under the pointer.
        RoundedRectangle {
            parent: grid.contentItem
            z: -1
            visible: root.hovered >= 0 && root.hovered !== root.picker.symbolPlace
            x: root.leftOf(root.hovered) + 2
            y: root.topOf(root.hovered) + 2
            width: grid.cellWidth - 4
            height: grid.cellHeight - 4
            radius: 8
            color: Theme.thin(Theme.primary, 0.08)

            Help {
                text: parent.visible ? root.picker.spoken(root.picker.symbols[root.hovered] ?? "") : ""
                shown: parent.visible
            }
        }

        // Of the one that the keyboard is at.
        Item {
            parent: grid.contentItem
            x: root.leftOf(grid.currentIndex) + 2
            y: root.topOf(grid.currentIndex) + 2
            width: grid.cellWidth - 4
            height: grid.cellHeight - 4

            FocusRing {
                shown: grid.activeFocus && FocusOrigin.keyboard && grid.count > 0
                base: 8
            }
        }

        HoverHandler {
            id: hover
        }

        TapHandler {
            onTapped: eventPoint => {
                grid.forceActiveFocus(Qt.MouseFocusReason);
                root.choose(root.placeAt(eventPoint.position));
            }
        }

        // Many are made at once: a cell is no more than its symbol.
        delegate: Symbol {
            required property string modelData
            required property int index

            width: grid.cellWidth
            height: grid.cellHeight
            name: modelData
            size: 17
            color: modelData === root.picker.symbol ? Theme.onAccent : Theme.label
            Accessible.role: Accessible.RadioButton
            Accessible.name: root.picker.spoken(modelData)
            Accessible.checkable: true
            Accessible.checked: modelData === root.picker.symbol
            Accessible.onPressAction: root.choose(index)
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
