pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell

MenuCommands {
    id: root

    required property ContentModel content

    title: "Insert"

    ShellCommand {
        text: "Pick Color from Screen"
        keys: "Ctrl+P"
        enabled: root.content.commands.hasSelection
        onActivated: root.content.commands.pickColorFromScreen()
    }
    ShellCommand {
        text: "Section…"
        enabled: root.content.detail === ContentModel.Detail.Brand
        onActivated: root.content.askNewSection()
    }
}
