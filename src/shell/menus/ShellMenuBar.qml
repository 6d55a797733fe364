pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The window's menus. Alt and its first letter opens each.
MenuBar {
    id: root

    required property ContentModel content

    background: null
    onOpeningByKey: content.sidebar.open = true

    WindowCommands {
        id: windowCommands

        commands: root.content.commands
        undo: root.content.undo
        onCloseRequested: root.Window.window.close()
    }

    CommandMenu {
        title: "File"
        commands: [windowCommands.newBrand, null, windowCommands.importBrand, windowCommands.exportBrand,
            windowCommands.exportBrandPage, null, windowCommands.closeWindow, windowCommands.quit]
    }

    CommandMenu {
        title: "Edit"
        commands: [windowCommands.undoStep, windowCommands.redoStep]
    }

    CommandMenu {
        title: "Insert"
        commands: [windowCommands.pickColor]
    }

    Shortcut {
        sequences: ["Alt+F"]
        onActivated: root.openByKey(0)
    }
    Shortcut {
        sequences: ["Alt+E"]
        onActivated: root.openByKey(1)
    }
    Shortcut {
        sequences: ["Alt+I"]
        onActivated: root.openByKey(2)
    }
}
