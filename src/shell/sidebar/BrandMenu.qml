pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What can be done with a brand of the sidebar as a whole. Made at each opening.
Menu {
    id: root

    required property Sidebar sidebar
    required property string packageURL

    title: "Brand"
    onClosed: destroy(1000) // behind what its entries do then

    MenuItem {
        text: "Set Icon…"
        onAfterClosing: root.sidebar.editEmblem(root.packageURL)
    }
    MenuItem {
        text: "Accent Color…"
        onAfterClosing: root.sidebar.editAccent(root.packageURL)
    }
    MenuItem {
        text: "Rename…"
        onTriggered: root.sidebar.rename(root.packageURL)
    }
    MenuItem {
        text: "Duplicate"
        onTriggered: root.sidebar.duplicate(root.packageURL)
    }
    MenuSeparator {}
    MenuItem {
        text: "Export Brand Page…"
        onAfterClosing: root.sidebar.exportPage(root.packageURL)
    }
    MenuItem {
        text: "Export Brand File…"
        onAfterClosing: root.sidebar.exportFile(root.packageURL)
    }
    MenuItem {
        text: root.sidebar.revealText
        onTriggered: root.sidebar.reveal(root.packageURL)
    }
    MenuSeparator {}
    MenuItem {
        text: "Move to Trash"
        destructive: true
        onTriggered: root.sidebar.moveToTrash(root.packageURL)
    }
}
