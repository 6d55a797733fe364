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

    // Of the section that has the keyboard, or of the place behind all; -1 for neither.
    property int focusedSection: -1

    property real lastSelectionHeight: 0
    property real placeBefore: -1 // the search; -1 without one

    // Gives the first tile the keyboard.
    function focusFirst() {
        for (let index = 0; index < sections.count; ++index) {
            if ((sections.itemAt(index) as SectionView).focusFirst())
                return;
        }
    }

    // Scrolls to that section, which is counted among all.
    function showSection(index: int) {
        glide.to = Math.max(0, Math.min(sections.itemAt(index).y - 6, contentHeight - height));
        glide.restart();
    }

    contentHeight: column.height
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
            const searching = root.workspace.search.text.trim() !== "";
            if (searching && root.placeBefore < 0)
                root.placeBefore = root.contentY;
            root.contentY = searching || root.placeBefore < 0 ? 0 : root.placeBefore;
            if (!searching)
                root.placeBefore = -1;
        }
    }

    NumberAnimation {
        id: glide

        target: root
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
                viewTop: root.contentY - y
                viewHeight: root.height
                onShifted: by => root.contentY += by
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
