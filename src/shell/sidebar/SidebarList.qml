pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Shell

// The brands and the open one's sections. One stop of the Tab key: arrows go from row to row, Return
// opens, F2 renames, Delete asks, Alt and the arrows move a brand, the Menu key opens its menu.
ListView {
    id: root

    required property Sidebar sidebar
    required property Thumbnails thumbnails
    required property LateViews late
    readonly property int endStrip: 14 // behind the last row, for what is dragged to the end
    readonly property SidebarRow current: currentItem as SidebarRow

    property string currentID: "" // of the current row
    property T.Menu menu: null // of a brand, the last one that was opened
    property string menuPackage: "" // of the brand whose menu is open

    signal rowDragged(row: SidebarRow, point: point)
    signal rowDropped

    function openMenu(row: SidebarRow, x: real, y: real) {
        menu = late?.brandMenu.createObject(root, {packageURL: row.packageURL}) as T.Menu;
        menuPackage = menu ? row.packageURL : "";
        menu?.popup(row, x, y);
    }

    function onBrand(act: var) {
        if (current && current.isBrand)
            act(current);
    }

    model: sidebar.rows
    clip: true
    activeFocusOnTab: count > 0 || activeFocus // an empty list is no stop
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: true
    bottomMargin: endStrip
    boundsBehavior: Flickable.StopAtBounds
    currentIndex: sidebar.rows.selectedRow()
    onCurrentItemChanged: currentID = current?.rowID ?? ""
    onActiveFocusChanged: {
        if (activeFocus && FocusOrigin.keyboard)
            currentIndex = sidebar.rows.selectedRow();
    }
    Accessible.role: Accessible.List
    Accessible.name: "Brands"

    delegate: SidebarRow {
        width: ListView.view.width
        sidebar: root.sidebar
        thumbnails: root.thumbnails
        focused: ListView.isCurrentItem && root.activeFocus && FocusOrigin.keyboard
        menuOpen: isBrand && root.menuPackage === packageURL
        settling: settled.running
        onPressed: {
            root.currentIndex = index;
            root.forceActiveFocus(Qt.MouseFocusReason);
        }
        onMenuRequested: (x, y) => root.openMenu(this, x, y)
        onDragged: (x, y) => root.rowDragged(this, mapToItem(root, x, y))
        onDropped: root.rowDropped()
    }

    T.ScrollBar.vertical: ScrollBar {}

    Timer {
        id: settled

        interval: 600
    }

    Connections {
        target: root.sidebar

        function onMoved() {
            settled.restart();
        }
    }

    Connections {
        target: root.menu

        function onAboutToHide() {
            root.menuPackage = "";
        }
    }

    // A row that has gone hands the keyboard to the selected brand, not to what took its place.
    Connections {
        target: root.sidebar.rows

        function onUpdated(isOtherSelected: bool) {
            if (isOtherSelected || root.sidebar.rows.rowOf(root.currentID) < 0)
                root.currentIndex = root.sidebar.rows.selectedRow();
        }
    }

    RowOrder {
        model: root.sidebar.rows
        rows: root.contentItem
    }

    WheelScroll {
        flickable: root
    }

    Keys.onReturnPressed: current?.activate()
    Keys.onEnterPressed: current?.activate()
    Keys.onSpacePressed: current?.activate()
    Keys.onDeletePressed: onBrand(row => root.sidebar.moveToTrash(row.packageURL))
    Keys.onMenuPressed: onBrand(row => root.openMenu(row, row.width / 2, row.height / 2))
    Keys.onPressed: event => {
        if (event.key === Qt.Key_F2)
            onBrand(row => root.sidebar.rename(row.packageURL));
        else if (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier)
            onBrand(row => root.openMenu(row, row.width / 2, row.height / 2));
        else if (event.modifiers & Qt.AltModifier && event.key === Qt.Key_Up)
            onBrand(row => root.sidebar.moveUp(row.rowID));
        else if (event.modifiers & Qt.AltModifier && event.key === Qt.Key_Down)
            onBrand(row => root.sidebar.moveDown(row.rowID));
        else
            return;
        event.accepted = true;
    }
}
