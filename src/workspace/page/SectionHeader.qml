pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A section's mark and name, and its menus.
FocusScope {
    id: root

    required property SectionModel section

    EmblemButton {
        id: emblem

        x: -4
        anchors.verticalCenter: parent.verticalCenter
        look: root.section.emblem
        thumbnails: root.section.workspace.thumbnails
        onClicked: root.section.editEmblem()
    }

    LineField {
        anchors.left: emblem.right
        anchors.leftMargin: 4
        anchors.right: addMenu.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        placeholderText: "Section name"
        text: root.section.name
        font: Theme.font(15, Font.DemiBold)
        onTextEdited: root.section.rename(text)
    }

    LazyMenuButton {
        id: addMenu

        anchors.right: optionsMenu.left
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        symbol: "plus"
        help: "Add content to this section"
        menu: AddMenu {
            section: root.section
        }
    }

    LazyMenuButton {
        id: optionsMenu

        anchors.right: parent.right
        anchors.rightMargin: -5
        anchors.verticalCenter: parent.verticalCenter
        symbol: "ellipsis.circle"
        help: "Section options"
        menu: SectionMenu {
            section: root.section
        }
    }
}
