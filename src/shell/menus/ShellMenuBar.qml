pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Shell

// The window's menus. Alt and its first letter opens each.
MenuBar {
    id: root

    required property ContentModel content

    readonly property Item focused: Window.activeFocusItem
    readonly property Item popups: T.Overlay.overlay
    readonly property var groups: [file, edit, view, insert, help]

    function holds(around: Item, item: Item): bool {
        for (let one = item; one; one = one.parent) {
            if (one === around)
                return true;
        }
        return false;
    }

    // All keys that the menus show, a line for each, for the sheet of them.
    function listShortcuts(): var {
        const lines = [];
        for (const group of groups) {
            for (let i = 0; i < group.entries.length; ++i) {
                const command = group.entries[i] as ShellCommand;
                if (command && command.keys !== "")
                    lines.push({group: group.title, text: command.text, keys: command.keys});
            }
        }
        return lines;
    }

    // As far apart as the sidebar's width allows.
    readonly property real titles: {
        let sum = 0;
        for (const group of groups)
            sum += metrics.advanceWidth(group.title);
        return sum;
    }

    leftPadding: 5
    rightPadding: 0
    itemPadding: Math.max(3, Math.min(9, Math.floor((width - leftPadding - titles) / (2 * groups.length))))
    background: null
    onOpeningByKey: content.sidebar.open = true
    // What the menus themselves have of it doesn't count.
    onFocusedChanged: if (focused && !holds(popups, focused) && !holds(root, focused)) content.edit.focused = focused

    FontMetrics {
        id: metrics

        font: Theme.body
    }

    FileCommands {
        id: file

        commands: root.content.commands
        sidebar: root.content.sidebar
        onCloseRequested: root.Window.window.close()
    }
    EditMenuCommands {
        id: edit

        content: root.content
    }
    ViewCommands {
        id: view

        content: root.content
    }
    InsertCommands {
        id: insert

        content: root.content
    }
    HelpCommands {
        id: help

        content: root.content
        onShortcutsRequested: root.content.showShortcuts(root.listShortcuts())
    }

    CommandMenu { commands: file }
    CommandMenu { commands: edit }
    CommandMenu { commands: view }
    CommandMenu { commands: insert }
    CommandMenu { commands: help }

    Shortcut { sequences: ["Alt+F"]; onActivated: root.openByKey(0) }
    Shortcut { sequences: ["Alt+E"]; onActivated: root.openByKey(1) }
    Shortcut { sequences: ["Alt+V"]; onActivated: root.openByKey(2) }
    Shortcut { sequences: ["Alt+I"]; onActivated: root.openByKey(3) }
    Shortcut { sequences: ["Alt+H"]; onActivated: root.openByKey(4) }
}
