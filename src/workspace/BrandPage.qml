pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The open brand as one scrolling page.
//   BrandPage { anchors.fill: parent; workspace: window.workspace; onAddSectionRequested: … }
// The window answers `addSectionRequested` by asking for a name and calling `workspace.addSection`.
FocusScope {
    id: root

    required property BrandWorkspace workspace

    // Of the section that has the keyboard, or of the place behind all; -1 for neither.
    property int focusedSection: -1

    // What the window needs at the start of the head, in front of the title.
    property real headStart: 0

    signal addSectionRequested

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

    Label {
        id: title

        x: Math.max(24, root.headStart)
        y: 14
        width: parent.width - 24 - x
        text: root.workspace.name
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
        anchors.fill: scroll
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

        // A click beside everything ends the editing of a name.
        PlainTap {
            onClicked: root.forceActiveFocus(Qt.MouseFocusReason)
        }

        Column {
            id: column

            x: 24
            width: scroll.width - 48
            topPadding: 6
            bottomPadding: 28
            spacing: 28

            Repeater {
                id: sections

                model: root.workspace.sections
                delegate: SectionView {
                    required property int index

                    width: column.width
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
                    onClicked: root.addSectionRequested()
                    onActiveFocusChanged: if (activeFocus) root.focusedSection = sections.count
                }
            }
        }
    }
}
