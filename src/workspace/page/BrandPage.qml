pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Workspace

// The open brand as one scrolling page.
//   BrandPage { anchors.fill: parent; workspace: window.workspace }
FocusScope {
    id: root

    required property BrandWorkspace workspace

    // What the window needs at the start of the head, in front of the title.
    property real headStart: 0

    readonly property int widest: 1200 // of the content, so that tools stay near what they belong to
    readonly property real contentWidth: Math.min(width - 48, widest)
    readonly property real contentLeft: Math.round((width - contentWidth) / 2)

    // Whether nothing that a click could mean stands there.
    function isGround(at: point): bool {
        for (let item = root, next = item.childAt(at.x, at.y); next; next = item.childAt(at.x, at.y)) {
            if (next as TileContainer || next as BlockItemView || next as SectionHeader || next as SelectionToolbar || next as BrandTitle || next as T.Control)
                return false;
            at = item.mapToItem(next, at);
            item = next;
        }
        return true;
    }

    // Gives the keyboard to the first of what the search has found.
    function focusResults() {
        if (workspace.search.global)
            return results.item?.forceActiveFocus(Qt.TabFocusReason);
        scroll.focusFirst();
    }

    // Scrolls to that section, which is counted among all.
    function showSection(index: int) {
        scroll.showSection(index);
    }

    Shortcut {
        sequence: "Esc"
        enabled: root.workspace.selected.count > 0
        onActivated: root.workspace.selected.clear()
    }

    // Takes the keyboard from a name that is being edited, when the page's ground is clicked.
    Item {
        id: ground

        Accessible.ignored: true
    }

    PlainTap {
        onClicked: {
            if (!root.isGround(point.position))
                return;
            ground.forceActiveFocus(Qt.MouseFocusReason);
            root.workspace.selected.clear();
        }
    }

    DragScroll {
        anchors.fill: parent
        head: scroll.y
        enabled: scroll.visible
        flickable: scroll
    }

    PageHead {
        id: head

        width: parent.width
        height: implicitHeight
        workspace: root.workspace
        contentLeft: root.contentLeft
        contentWidth: root.contentWidth
        headStart: root.headStart
        onResultsRequested: root.focusResults()
        onLeaving: ground.forceActiveFocus(Qt.OtherFocusReason)
    }

    Divider {
        anchors.top: scroll.top
        width: parent.width
        opacity: Math.max(0, Math.min(1, scroll.contentY / 12))
        Accessible.ignored: true
        z: 1
    }

    PageScroll {
        id: scroll

        anchors.fill: parent
        anchors.topMargin: head.height
        workspace: root.workspace
        contentLeft: root.contentLeft
        contentWidth: root.contentWidth
        selectionHeight: head.selectionHeight
        visible: !root.workspace.search.global
    }

    LazyItem {
        anchors.horizontalCenter: parent.horizontalCenter
        y: scroll.y + (scroll.height - height) * 0.4
        active: root.workspace.nothingFound && !root.workspace.search.global
        sourceComponent: EmptyState {
            symbol: "magnifyingglass"
            title: "No matches for “" + root.workspace.search.text.trim() + "”"
            message: "Searching this brand’s items by name, type and value."

            Button {
                text: "Search All Brands"
                onClicked: root.workspace.search.scope = PageSearch.AllBrands
            }
        }
    }

    LazyItem {
        id: results

        anchors.fill: parent
        anchors.topMargin: head.height
        active: root.workspace.search.global
        visible: active
        sourceComponent: GlobalSearchResults {
            search: root.workspace.search
            thumbnails: root.workspace.thumbnails
            contentLeft: root.contentLeft
            contentWidth: root.contentWidth
            onLeaving: head.focusSearch()
        }
    }
}
