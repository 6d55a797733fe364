pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Shell
import TarnLoft.Workspace

// What the main window holds: the sidebar beside the open brand or an empty state, and the sheets
// of both.
FocusScope {
    id: root

    required property ContentModel content
    required property real initialSidebarWidth
    readonly property real sidebarWidth: sidebar.width

    property bool addingSection: false

    signal closeRequested

    focus: true

    WindowCommands {
        id: windowCommands

        commands: root.content.commands
        undo: root.content.undo
        onCloseRequested: root.closeRequested()
    }

    SplitView {
        anchors.fill: parent

        SidebarView {
            id: sidebar

            SplitView.minimumWidth: 200
            SplitView.preferredWidth: root.initialSidebarWidth
            SplitView.maximumWidth: 340
            sidebar: root.content.sidebar
            thumbnails: root.content.thumbnails
            onNewBrandRequested: root.content.showNewBrand = true

            header: ShellMenuBar {
                commands: windowCommands
            }
        }

        Item {
            SplitView.fillWidth: true

            LazyItem {
                anchors.fill: parent
                active: root.content.detail !== ContentModel.Detail.brand
                sourceComponent: EmptyLibraryView {
                    content: root.content
                }
            }

            // Another brand gets another page, with fresh state.
            Repeater {
                model: root.content.shown && root.content.workspace ? [root.content.workspace] : []
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
        }
    }

    LazyItem {
        anchors.fill: parent
        active: root.content.toast !== "" || item !== null // from the first one on
        sourceComponent: Item {
            ToastView {
                message: root.content.toast
            }
        }
    }

    LazySheet {
        active: root.content.showNewBrand

        NewBrandSheet {
            text: root.content.newBrandName
            onTextEdited: text => root.content.newBrandName = text
            onCreate: name => root.content.createBrand(name)
            onClosed: root.content.showNewBrand = false
        }
    }

    LazySheet {
        active: root.addingSection

        RenameSheet {
            title: "New Section"
            onSave: name => root.content.workspace.addSection(name)
            onClosed: root.addingSection = false
        }
    }
}
