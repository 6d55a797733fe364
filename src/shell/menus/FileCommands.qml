pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell

MenuCommands {
    id: root

    required property ShellCommands commands
    required property Sidebar sidebar

    signal closeRequested

    // For the selected brand; most of them stand in its own menu too.
    component BrandCommand: ShellCommand {
        enabled: root.commands.hasSelection
    }

    title: "File"

    ShellCommand {
        text: "New Brand…"
        keys: "Ctrl+N"
        onActivated: root.commands.newBrand()
    }
    MenuGroup {}
    ShellCommand {
        text: "Import Brand…"
        keys: "Ctrl+Shift+I"
        onActivated: root.commands.importBrand()
    }
    BrandCommand {
        text: "Export Brand…"
        keys: "Ctrl+Shift+E"
        onActivated: root.commands.exportBrand()
    }
    BrandCommand {
        text: "Export Brand Page…"
        keys: "Ctrl+Alt+Shift+E"
        onActivated: root.commands.exportBrandPage()
    }
    MenuGroup {}
    BrandCommand {
        text: "Rename Brand…"
        onActivated: root.sidebar.rename(root.commands.selectedBrand)
    }
    BrandCommand {
        text: "Duplicate Brand"
        onActivated: root.sidebar.duplicate(root.commands.selectedBrand)
    }
    BrandCommand {
        text: "Set Icon…"
        onActivated: root.sidebar.editEmblem(root.commands.selectedBrand)
    }
    BrandCommand {
        text: "Accent Color…"
        onActivated: root.sidebar.editAccent(root.commands.selectedBrand)
    }
    BrandCommand {
        text: root.sidebar.revealText
        onActivated: root.sidebar.reveal(root.commands.selectedBrand)
    }
    BrandCommand {
        text: "Move to Trash"
        onActivated: root.sidebar.moveToTrash(root.commands.selectedBrand)
    }
    MenuGroup {}
    ShellCommand {
        text: "Close Window"
        keys: "Ctrl+W"
        onActivated: root.closeRequested()
    }
    ShellCommand {
        text: "Quit"
        keys: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
