pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Shell

// The window's menus. F10 opens the first, Alt and its first letter each.
MenuBar {
    id: root

    required property ShellCommands commands
    required property StackUndoManager undo

    signal closeRequested

    function openMenu(index: int) {
        (itemAt(index) as T.MenuBarItem).triggered();
    }

    background: null

    Menu {
        title: "File"

        MenuItem {
            action: T.Action {
                text: "New Brand…"
                shortcut: "Ctrl+N"
                onTriggered: root.commands.newBrand()
            }
        }
        MenuSeparator {}
        MenuItem {
            action: T.Action {
                text: "Import Brand…"
                shortcut: "Ctrl+Shift+I"
                onTriggered: root.commands.importBrand()
            }
        }
        MenuItem {
            action: T.Action {
                text: "Export Brand…"
                shortcut: "Ctrl+Shift+E"
                enabled: root.commands.hasSelection
                onTriggered: root.commands.exportBrand()
            }
        }
        MenuItem {
            action: T.Action {
                text: "Export Brand Page…"
                shortcut: "Ctrl+Alt+Shift+E"
                enabled: root.commands.hasSelection
                onTriggered: root.commands.exportBrandPage()
            }
        }
        MenuSeparator {}
        MenuItem {
            action: T.Action {
                text: "Close Window"
                shortcut: "Ctrl+W"
                onTriggered: root.closeRequested()
            }
        }
        MenuItem {
            action: T.Action {
                text: "Quit"
                shortcut: "Ctrl+Q"
                onTriggered: Qt.quit()
            }
        }
    }

    Menu {
        title: "Edit"

        MenuItem {
            action: T.Action {
                text: root.undo.undoText
                shortcut: "Ctrl+Z"
                enabled: root.undo.canUndo
                onTriggered: root.undo.undo()
            }
        }
        MenuItem {
            action: T.Action {
                text: root.undo.redoText
                shortcut: "Ctrl+Shift+Z"
                enabled: root.undo.canRedo
                onTriggered: root.undo.redo()
            }
        }
    }

    Menu {
        title: "Insert"

        MenuItem {
            action: T.Action {
                text: "Pick Color from Screen"
                shortcut: "Ctrl+P"
                enabled: root.commands.hasSelection
                onTriggered: root.commands.pickColorFromScreen()
            }
        }
    }

    Shortcut {
        sequences: ["F10", "Alt+F"]
        onActivated: root.openMenu(0)
    }
    Shortcut {
        sequences: ["Alt+E"]
        onActivated: root.openMenu(1)
    }
    Shortcut {
        sequences: ["Alt+I"]
        onActivated: root.openMenu(2)
    }
}
