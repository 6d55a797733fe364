pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell

MenuCommands {
    id: root

    required property ContentModel content

    signal shortcutsRequested

    title: "Help"

    ShellCommand {
        text: "Keyboard Shortcuts"
        keys: "Ctrl+?"
        onActivated: root.shortcutsRequested()
    }
    ShellCommand {
        text: "About Tarn Loft"
        onActivated: root.content.showAbout()
    }
    ShellCommand {
        text: "Check for Updates…"
        visible: root.content.commands.hasUpdater
        enabled: root.content.commands.canCheckForUpdates
        onActivated: root.content.commands.checkForUpdates()
    }
}
