pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be done with a tile. Made at each opening.
Menu {
    id: root

    required property Tile tile

    function fill(menu: Menu, entries: var) {
        for (const entry of entries) {
            if (entry.entries.length > 0) {
                const inner = subMenu.createObject(menu, {title: entry.text}) as Menu;
                fill(inner, entry.entries);
                menu.addMenu(inner);
            } else if (entry.text === "") {
                menu.addItem(divider.createObject(menu.contentItem) as MenuSeparator);
            } else if (entry.telling) {
                menu.addItem(line.createObject(menu.contentItem, {text: entry.text, prominent: entry.prominent}) as MenuTitle);
            } else {
                menu.addItem(command.createObject(menu.contentItem, {entry: entry}) as MenuItem);
            }
        }
    }

    title: root.tile.name || root.tile.description
    onAboutToShow: tile.menuOpen = true
    onAboutToHide: tile.menuOpen = false
    onClosed: destroy(1000) // behind what its entry does then
    Component.onCompleted: fill(root, tile.menuEntries())

    readonly property Component command: Component {
        MenuItem {
            required property var entry

            text: entry.text
            enabled: entry.enabled
            destructive: entry.destructive
            checkable: entry.checkable
            checked: entry.checked
            onAfterClosing: entry.trigger()
        }
    }

    readonly property Component divider: Component {
        MenuSeparator {}
    }

    readonly property Component line: Component {
        MenuTitle {}
    }

    readonly property Component subMenu: Component {
        Menu {}
    }
}
