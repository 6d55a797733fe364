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
            if (next as TileContainer || next as BlockItemView || next as SectionHeader || next as T.Control)
                return false;
            at = item.mapToItem(next, at);
            item = next;
        }
        return true;
    }

    // Scrolls to that section, which is counted among all.
    function showSection(index: int) {
        scroll.showSection(sections.itemAt(index));
    }

    Shortcut {
        sequence: "Ctrl+A"
        onActivated: root.workspace.selectAll()
    }

    Shortcut {
        sequences: ["Delete", "Backspace"]
        enabled: root.workspace.hasSelection
        onActivated: root.workspace.deleteSelection()
    }

    Shortcut {
        sequence: "Esc"
        enabled: root.workspace.hasSelection
        onActivated: root.workspace.clearSelection()
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
            root.workspace.clearSelection();
        }
    }

    Label {
        id: title

        x: Math.max(root.contentLeft, root.headStart)
        y: 14
        width: root.contentLeft + root.contentWidth - x
        text: root.workspace.name
        horizontalAlignment: Text.AlignLeft // of a right-to-left one too
        font: Theme.font(26, Font.Bold)
        Accessible.role: Accessible.Heading
    }

    Divider {
        anchors.top: scroll.top
        width: parent.width
        opacity: Math.max(0, Math.min(1, scroll.contentY / 12))
        Accessible.ignored: true
        z: 1
    }

    DragScroll {
        anchors.fill: parent
        head: scroll.y
        flickable: scroll
    }

    ScrollArea {
        id: scroll

        anchors.fill: parent
        anchors.topMargin: title.y + title.implicitHeight + 10
        contentHeight: column.height

        function showSection(section: Item) {
            glide.to = Math.max(0, Math.min(section.y - 6, contentHeight - height));
            glide.restart();
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
}
