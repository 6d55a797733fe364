pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The sections of a page, which scroll under its head.
ScrollArea {
    id: root

    required property BrandWorkspace workspace
    property real contentLeft: 0
    property real contentWidth: width
    property real selectionHeight: 0 // of the tools of the selection, which come and go above it

    property real lastSelectionHeight: 0
    property real placeBefore: -1 // the search; -1 without one

    // Gives the first tile the keyboard.
    function focusFirst() {
        (column.firstWithTiles() as SectionView)?.focusFirst();
    }

    // Scrolls to that section, which is counted among all.
    function showSection(index: int) {
        glide.stop();
        glide.row = index;
        glide.start = contentY;
        glide.restart();
    }

    contentHeight: content.height
    bottomMargin: selectionHeight // so that there is always room for that

    // Tiles stay where they are seen.
    onSelectionHeightChanged: {
        const by = selectionHeight - lastSelectionHeight;
        lastSelectionHeight = selectionHeight;
        contentY = Math.max(0, contentY + by);
    }

    // What is found stands on top, and the page is back where it was when the search ends.
    Connections {
        target: root.workspace.search

        function onChanged() {
            column.forceLayout();
            content.forceLayout();
            const searching = root.workspace.search.text.trim() !== "";
            if (searching && root.placeBefore < 0)
                root.placeBefore = root.contentY;
            root.contentY = searching || root.placeBefore < 0 ? 0 : root.placeBefore;
            if (!searching)
                root.placeBefore = -1;
        }
    }

    // What stands above the section may turn out to be of another height on the way.
    NumberAnimation {
        id: glide

        property int row: 0
        property real start: 0
        property real share: 0 // of the way

        target: glide
        property: "share"
        from: 0
        to: 1
        duration: Motion.time(250)
        easing.type: Easing.InOutQuad
        onShareChanged: {
            const end = Math.min(column.y + column.topOf(row) - 6, root.contentHeight - root.height);
            root.contentY = start + (Math.max(0, end) - start) * share;
        }
    }

    Column {
        id: content

        x: root.contentLeft
        width: root.contentWidth
        topPadding: 6
        bottomPadding: 28
        spacing: 28

        SectionColumn {
            id: column

            width: parent.width
            height: implicitHeight
            visible: height > 0
            sections: root.workspace.sections
            viewTop: root.contentY - y
            viewHeight: root.height
            onShifted: by => root.contentY += by
            view: SectionView {
                width: column.width
                margin: content.x
                viewTop: column.viewTop - y
                viewHeight: column.viewHeight
                onShifted: by => root.contentY += by
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
                onActiveFocusChanged: if (activeFocus) column.focusedRow = root.workspace.sections.count
            }
        }
    }
}
