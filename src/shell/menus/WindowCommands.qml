pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell

// The commands that the window's menus offer.
QtObject {
    id: root

    required property ShellCommands commands
    required property WindowUndo undo

    signal closeRequested

    readonly property ShellCommand newBrand: ShellCommand {
        text: "New Brand…"
        keys: "Ctrl+N"
        onActivated: root.commands.newBrand()
    }
    readonly property ShellCommand importBrand: ShellCommand {
        text: "Import Brand…"
        keys: "Ctrl+Shift+I"
        onActivated: root.commands.importBrand()
    }
    readonly property ShellCommand exportBrand: ShellCommand {
        text: "Export Brand…"
        keys: "Ctrl+Shift+E"
        enabled: root.commands.hasSelection
        onActivated: root.commands.exportBrand()
    }
    readonly property ShellCommand exportBrandPage: ShellCommand {
        text: "Export Brand Page…"
        keys: "Ctrl+Alt+Shift+E"
        enabled: root.commands.hasSelection
        onActivated: root.commands.exportBrandPage()
    }
    readonly property ShellCommand closeWindow: ShellCommand {
        text: "Close Window"
        keys: "Ctrl+W"
        onActivated: root.closeRequested()
    }
    readonly property ShellCommand quit: ShellCommand {
        text: "Quit"
        keys: "Ctrl+Q"
        onActivated: Qt.quit()
    }
    readonly property ShellCommand undoStep: ShellCommand {
        text: root.undo.undoText
        keys: "Ctrl+Z"
        enabled: root.undo.canUndo
        onActivated: root.undo.undo()
    }
    readonly property ShellCommand redoStep: ShellCommand {
        text: root.undo.redoText
        keys: "Ctrl+Shift+Z"
        enabled: root.undo.canRedo
        onActivated: root.undo.redo()
    }
    readonly property ShellCommand pickColor: ShellCommand {
        text: "Pick Color from Screen"
        keys: "Ctrl+P"
        enabled: root.commands.hasSelection
        onActivated: root.commands.pickColorFromScreen()
    }
}
