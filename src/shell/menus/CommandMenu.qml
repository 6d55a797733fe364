pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A menu of the window's commands, whose entries are made when it first opens.
Menu {
    id: root

    required property var commands // ShellCommands in their order; null for a line between groups

    readonly property Component entry: Component {
        CommandItem {}
    }
    readonly property Component line: Component {
        MenuSeparator {}
    }

    onAboutToShow: {
        if (count > 0)
            return;
        for (const command of commands)
            addItem(command ? entry.createObject(contentItem, {command: command}) : line.createObject(contentItem));
    }
}
