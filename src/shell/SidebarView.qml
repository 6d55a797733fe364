pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The left column: the window's menus, the brands, and the button that makes one.
Rectangle {
    id: root

    required property Sidebar sidebar
    required property Component header

    signal newBrandRequested

    color: Theme.sidebarBackground

    Loader {
        id: top

        width: parent.width
        height: 44
        sourceComponent: root.header
    }

    SidebarList {
        id: list

        anchors.top: top.bottom
        anchors.bottom: foot.top
        width: parent.width
        sidebar: root.sidebar
        onRowDragged: (row, point) => drag.moveTo(row, point)
        onRowDropped: root.sidebar.endDrag()
    }

    SidebarDrag {
        id: drag

        anchors.fill: list
        list: list
        sidebar: root.sidebar
    }

    Divider {
        anchors.bottom: foot.top
        width: parent.width
        visible: list.contentHeight > list.height
    }

    Item {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        height: newBrand.height + 20

        Button {
            id: newBrand

            x: 10
            anchors.verticalCenter: parent.verticalCenter
            symbol: "plus"
            text: "New Brand"
            kind: Button.Borderless
            tint: Theme.secondaryLabel
            onClicked: root.newBrandRequested()
        }
    }

    SheetLoader {
        shown: root.sidebar.renaming
        sheet: RenameSheet {
            title: "Rename Brand"
            text: root.sidebar.renameText
            onSave: name => root.sidebar.commitRename(name)
            onClosed: root.sidebar.endRename()
        }
    }

    SheetLoader {
        shown: root.sidebar.deleting
        sheet: ConfirmationDialog {
            title: root.sidebar.deleteTitle
            message: "The brand file goes to the Trash. You can restore it from there."
            confirmText: "Move to Trash"
            destructive: true
            onConfirmed: root.sidebar.confirmDelete()
            onClosed: root.sidebar.endDelete()
        }
    }
}
