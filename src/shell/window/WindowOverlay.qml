pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The toast, the sheets that concern the library, and what is told of failures.
Item {
    id: root

    required property ContentModel content

    readonly property Sidebar sidebar: content.sidebar

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
        active: root.sidebar.renaming

        RenameSheet {
            title: "Rename Brand"
            text: root.sidebar.renameText
            onSave: name => root.sidebar.commitRename(name)
            onClosed: root.sidebar.endRename()
        }
    }

    LazySheet {
        active: root.sidebar.deleting

        ConfirmationDialog {
            title: root.sidebar.deleteTitle
            message: "The brand file goes to the Trash. You can restore it from there."
            confirmText: "Move to Trash"
            destructive: true
            onConfirmed: root.sidebar.confirmDelete()
            onClosed: root.sidebar.endDelete()
        }
    }

    AlertSheets {
        alerts: root.content.alerts
    }
}
