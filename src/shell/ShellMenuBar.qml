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

    CommandMenu {
        title: "File"
        commands: [root.commands.newBrand, null, root.commands.importBrand, root.commands.exportBrand,
            root.commands.exportBrandPage, null, root.commands.closeWindow, root.commands.quit]
    }

    CommandMenu {
        title: "Edit"
        commands: [root.commands.undoStep, root.commands.redoStep]
    }

    CommandMenu {
        title: "Insert"
        commands: [root.commands.pickColor]
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
