pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell
import TarnLoft.Workspace

// Fields take the keys of what is done with text by themselves; here they mean the page's tiles.
MenuCommands {
    id: root

    required property ContentModel content
    readonly property BrandWorkspace page: content.pages[0] ?? null
    readonly property EditCommands edit: content.edit
    readonly property WindowUndo undo: content.undo

    title: "Edit"
    onOpening: edit.refresh()

    ShellCommand {
        text: root.undo.undoText
        keys: "Ctrl+Z"
        enabled: root.undo.canUndo
        onActivated: root.undo.undo()
    }
    ShellCommand {
        text: root.undo.redoText
        keys: "Ctrl+Shift+Z"
        enabled: root.undo.canRedo
        onActivated: root.undo.redo()
    }
    MenuGroup {}
    ShellCommand {
        text: "Cut"
        keys: "Ctrl+X"
        enabled: root.edit.canCut
        keysEnabled: false
        onActivated: root.edit.cut()
    }
    ShellCommand {
        text: "Copy"
        keys: "Ctrl+C"
        enabled: root.edit.canCopy
        keysEnabled: root.edit.copiesTile
        onActivated: root.edit.copy()
    }
    ShellCommand {
        text: "Paste"
        keys: "Ctrl+V"
        enabled: root.edit.canPaste
        keysEnabled: false
        onActivated: root.edit.paste()
    }
    ShellCommand {
        text: "Delete"
        keys: "Del"
        otherKeys: "Backspace"
        enabled: root.edit.canDelete
        keysEnabled: (root.page?.selected.count ?? 0) > 0
        onActivated: root.edit.remove()
    }
    ShellCommand {
        text: "Select All"
        keys: "Ctrl+A"
        enabled: root.edit.canSelectAll
        keysEnabled: root.page?.search.global === false
        onActivated: root.edit.selectAll()
    }
    MenuGroup {}
    ShellCommand {
        text: "Find"
        keys: "Ctrl+F"
        enabled: root.content.detail === ContentModel.Detail.Brand
        onActivated: root.content.find()
    }
    MenuGroup {}
    ShellCommand {
        text: "Settings…"
        keys: "Ctrl+,"
        onActivated: root.content.commands.openSettings()
    }
}
