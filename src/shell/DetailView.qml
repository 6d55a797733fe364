pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Sheets
import TarnLoft.Shell
import TarnLoft.Workspace

// What stands beside the sidebar: the open brand's page, or an empty state.
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

    // Another brand gets another page, with fresh state.
    Repeater {
        model: root.content.workspace ? [root.content.workspace] : []
        delegate: BrandPage {
            id: page

            required property BrandWorkspace modelData

            anchors.fill: parent
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
