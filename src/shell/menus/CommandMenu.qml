pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// A menu of the window's commands, whose entries are made when it first opens.
Menu {
    id: root

    required property MenuCommands commands

    readonly property Component entry: Component {
        CommandItem {}
    }
    readonly property Component line: Component {
        MenuSeparator {}
    }
    readonly property Component heading: Component {
        MenuTitle {}
    }

    function add(made: Item) {
        addItem(made);
    }

    function addGroup(group: MenuGroup) {
        if (count > 0)
            add(line.createObject(contentItem) as Item);
        if (group.title !== "")
            add(heading.createObject(contentItem, {text: group.title}) as Item);
    }

    title: commands.title
    onAboutToShow: {
        commands.opening();
        if (count > 0)
            return;
        for (let i = 0; i < commands.entries.length; ++i) {
            const command = commands.entries[i] as ShellCommand;
            if (command)
                add(entry.createObject(contentItem, {command: command}) as Item);
            else
                addGroup(commands.entries[i] as MenuGroup);
        }
    }
}
