pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Shell

// The window's menus. Alt and its first letter opens each.
MenuBar {
    id: root

    required property WindowCommands commands

    function openMenu(index: int) {
        (itemAt(index) as T.MenuBarItem).triggered();
    }

    background: null

    Menu {
        title: "File"

        CommandItem { command: root.commands.newBrand }
        MenuSeparator {}
        CommandItem { command: root.commands.importBrand }
        CommandItem { command: root.commands.exportBrand }
        CommandItem { command: root.commands.exportBrandPage }
        MenuSeparator {}
        CommandItem { command: root.commands.closeWindow }
        CommandItem { command: root.commands.quit }
    }

    Menu {
        title: "Edit"

        CommandItem { command: root.commands.undoStep }
        CommandItem { command: root.commands.redoStep }
    }

    Menu {
        title: "Insert"

        CommandItem { command: root.commands.pickColor }
    }

    Shortcut {
        sequences: ["Alt+F"]
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
