pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell
import TarnLoft.Workspace

// What stands beside the sidebar: the open brand's page, headed by why its changes aren't saved if
// they aren't, or an empty state.
FocusScope {
    id: root

    required property ContentModel content

    readonly property Sidebar sidebar: content.sidebar

    // The keyboard goes on at the button that opened the sidebar.
    Connections {
        target: root.sidebar

        function onOpenChanged() {
            if (!root.sidebar.open && !root.activeFocus)
                unfold.item?.forceActiveFocus(FocusOrigin.keyboard ? Qt.TabFocusReason : Qt.MouseFocusReason);
        }
    }

    LazyItem {
        id: unfold

        x: 14
        y: unsaved.height + plain.height + 15
        z: 1
        active: root.sidebar.folded
        sourceComponent: Button {
            symbol: "line.3.horizontal"
            symbolSize: 16
            kind: Button.Borderless
            help: "Show Sidebar"
            onClicked: root.sidebar.open = true
        }
    }

    LazyItem {
        anchors.fill: parent
        active: root.content.detail !== ContentModel.Detail.Brand
        sourceComponent: EmptyLibraryView {
            content: root.content
        }
    }

    WarningBar {
        id: unsaved

        readonly property string problem: root.content.alerts.saveProblem

        width: parent.width
        message: problem && "Changes aren't saved: " + problem

        Button {
            text: "Try Again"
            controlSize: ControlSize.Small
            onClicked: {
                unsaved.blink();
                root.content.alerts.retrySave();
            }
        }

        Button {
            text: "Save a Copy…"
            controlSize: ControlSize.Small
            onClicked: root.content.alerts.saveCopy()
        }
    }

    WarningBar {
        id: plain

        y: unsaved.height
        width: parent.width
        message: root.content.alerts.plainness

        Button {
            text: "Show Them"
            controlSize: ControlSize.Small
            onClicked: root.content.alerts.showWholly()
        }
    }

    // Another brand gets another page, with fresh state.
    Repeater {
        model: root.content.pages
        delegate: BrandPage {
            id: page

            required property BrandWorkspace modelData

            anchors.fill: parent
            anchors.topMargin: unsaved.height + plain.height
            workspace: modelData
            headStart: unfold.active ? unfold.x + unfold.width + 6 : 0

            Connections {
                target: root.content

                function onSectionRequested(index: int) {
                    page.showSection(index);
                }
            }
        }
    }
}
