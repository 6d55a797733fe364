pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Shell
import TarnLoft.Workspace

// What stands beside the sidebar: the open brand's page, headed by why its changes aren't saved if
// they aren't, or an empty state.
Item {
    id: root

    required property ContentModel content

    property bool addingSection: false

    LazyItem {
        anchors.fill: parent
        active: root.content.detail !== ContentModel.Detail.brand
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

    // Another brand gets another page, with fresh state.
    Repeater {
        model: root.content.workspace ? [root.content.workspace] : []
        delegate: BrandPage {
            id: page

            required property BrandWorkspace modelData

            anchors.fill: parent
            anchors.topMargin: unsaved.height
            workspace: modelData
            onAddSectionRequested: root.addingSection = true

            Connections {
                target: root.content

                function onSectionRequested(index: int) {
                    page.showSection(index);
                }
            }
        }
    }

    LazySheet {
        active: root.addingSection

        RenameSheet {
            title: "New Section"
            onSave: name => (root.content.workspace as BrandWorkspace).addSection(name)
            onClosed: root.addingSection = false
        }
    }
}
