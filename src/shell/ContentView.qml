pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What the main window holds: the sidebar beside the open brand or an empty state, and the sheets
// of both.
FocusScope {
    id: root

    required property ContentModel content
    required property real initialSidebarWidth
    readonly property real sidebarWidth: sidebar.width

    signal closeRequested

    focus: true

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
                commands: root.content.commands
                undo: root.content.undo
                onCloseRequested: root.closeRequested()
            }
        }

        Lazy {
            SplitView.fillWidth: true
            sourceComponent: root.content.detail === ContentModel.Detail.brand ? brandPage : emptyLibrary
        }
    }

    Component {
        id: emptyLibrary

        EmptyLibraryView {
            content: root.content
        }
    }

    Component {
        id: brandPage

        BrandDetail {
            content: root.content
        }
    }

    Toast {
        message: root.content.toasts.message
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
}
