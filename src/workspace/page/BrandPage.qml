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

    // Of the section that has the keyboard, or of the place behind all; -1 for neither.
    property int focusedSection: -1

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
        for (let index = 0; index < sections.count; ++index) {
            if ((sections.itemAt(index) as SectionView).focusFirst())
                return;
        }
    }

    // Scrolls to that section, which is counted among all.
    function showSection(index: int) {
        scroll.showSection(sections.itemAt(index));
    }

    Shortcut {
        sequence: "Ctrl+A"
        enabled: !root.workspace.search.global
        onActivated: root.workspace.selected.selectAll()
    }

    Shortcut {
        sequences: ["Delete", "Backspace"]
        enabled: root.workspace.selected.count > 0
        onActivated: root.workspace.selected.remove()
    }

    Shortcut {
        sequence: "Esc"
        enabled: root.workspace.selected.count > 0
        onActivated: root.workspace.selected.clear()
    }

    Shortcut {
        sequences: ["Ctrl+F"]
        onActivated: head.focusSearch()
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

    // Tiles stay where they are seen while the tools of the selection come and go above them.
    PageHead {
        id: head

        width: parent.width
        height: implicitHeight
        workspace: root.workspace
        contentLeft: root.contentLeft
        contentWidth: root.contentWidth
        headStart: root.headStart
        onSelectionHeightChanged: scroll.keepPlace()
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

    ScrollArea {
        id: scroll

        anchors.fill: parent
        anchors.topMargin: head.height
        contentHeight: column.height
        bottomMargin: head.selectionHeight // so that there is always room for that
        visible: !root.workspace.search.global

        property real lastSelectionHeight: 0
        property real placeBefore: -1 // the search; -1 without one

        // What is found stands on top, and the page is back where it was when the search ends.
        function followSearch() {
            column.forceLayout();
            const searching = root.workspace.search.text.trim() !== "";
            if (searching && placeBefore < 0)
                placeBefore = contentY;
            contentY = searching || placeBefore < 0 ? 0 : placeBefore;
            if (!searching)
                placeBefore = -1;
        }

        function keepPlace() {
            const by = head.selectionHeight - lastSelectionHeight;
            lastSelectionHeight = head.selectionHeight;
            contentY = Math.max(0, contentY + by);
        }

        function showSection(section: Item) {
            glide.to = Math.max(0, Math.min(section.y - 6, contentHeight - height));
            glide.restart();
        }

        Connections {
            target: root.workspace.search

            function onChanged() {
                scroll.followSearch();
            }
        }

        NumberAnimation {
            id: glide

            target: scroll
            property: "contentY"
            duration: Motion.time(250)
            easing.type: Easing.InOutQuad
        }

        Column {
            id: column

            x: root.contentLeft
            width: root.contentWidth
            topPadding: 6
            bottomPadding: 28
            spacing: 28

            Repeater {
                id: sections

                model: root.workspace.sections
                delegate: SectionView {
                    required property int index

                    width: column.width
                    margin: column.x
                    reachable: root.focusedSection >= 0 && Math.abs(index - root.focusedSection) <= 1
                    viewTop: scroll.contentY - y
                    viewHeight: scroll.height
                    onShifted: by => scroll.contentY += by
                    onActiveFocusChanged: if (activeFocus) root.focusedSection = index
                }
            }

            Item {
                width: parent.width
                height: addSection.height + 4
                visible: !root.workspace.nothingFound

                Button {
                    id: addSection

                    x: -8
                    y: 4
                    text: "Add Section"
                    symbol: "plus"
                    kind: Button.Borderless
                    tint: Theme.secondaryLabel
                    onClicked: root.workspace.askNewSection()
                    onActiveFocusChanged: if (activeFocus) root.focusedSection = sections.count
                }
            }
        }
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
