pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell
import TarnLoft.Workspace

// The open brand's page, a new one for each brand.
FocusScope {
    id: root

    required property ContentModel content
    property bool addingSection: false

    Repeater {
        id: pages

        model: root.content.workspace ? [root.content.workspace] : []

        delegate: BrandPage {
            required property BrandWorkspace modelData

            width: root.width
            height: root.height
            workspace: modelData
            onAddSectionRequested: root.addingSection = true
        }
    }

    Connections {
        target: root.content

        function onSectionRequested(index) {
            (pages.itemAt(0) as BrandPage)?.showSection(index);
        }
    }

    LazySheet {
        active: root.addingSection

        RenameSheet {
            title: "New Section"
            text: ""
            onSave: name => root.content.workspace?.addSection(name)
            onClosed: root.addingSection = false
        }
    }
}
