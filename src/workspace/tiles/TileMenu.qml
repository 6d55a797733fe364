pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be done with a tile: `show` opens it for one. What it is made of serves the next tile
// again.
Menu {
    id: root

    property Tile tile: null

    function show(tile: Tile, view: Item, at: point) {
        root.tile = tile;
        fill(root, tile.menuEntries());
        popup(view, at.x, at.y);
    }

    function fill(menu: Menu, entries: var) {
        menu.filling = true;
        for (let place = 0; place < entries.length; ++place)
            put(menu, place, entries[place]);
        while (menu.count > entries.length)
            drop(menu, menu.count - 1);
        menu.filling = false;
    }

    function put(menu: Menu, place: int, entry: var) {
        if (entry.entries.length > 0) {
            const inner = menu.menuAt(place) as Menu ?? subMenu.createObject(menu) as Menu;
            inner.title = entry.text;
            fill(inner, entry.entries);
            if (menu.menuAt(place) !== inner) {
                dropAt(menu, place);
                menu.insertMenu(place, inner);
            }
            return;
        }
        const wanted = entry.text === "" ? divider : entry.telling ? line : command;
        const there = menu.itemAt(place) as TileMenuItem;
        if (wanted === command && there) {
            there.entry = entry;
            return;
        }
        if (wanted === divider && menu.itemAt(place) as MenuSeparator)
            return;
        dropAt(menu, place);
        menu.insertItem(place, wanted.createObject(menu.contentItem, {entry: entry}) as Item);
    }

    function dropAt(menu: Menu, place: int) {
        if (place < menu.count)
            drop(menu, place);
    }

    function drop(menu: Menu, place: int) {
        if (menu.menuAt(place))
            menu.takeMenu(place).destroy();
        else
            menu.takeItem(place).destroy();
    }

    title: tile ? tile.name || tile.description : ""
    onAboutToShow: tile.menuOpen = true
    onAboutToHide: if (tile) tile.menuOpen = false

    readonly property Component command: Component {
        TileMenuItem {}
    }

    readonly property Component divider: Component {
        MenuSeparator {
            property var entry
        }
    }

    readonly property Component line: Component {
        MenuTitle {
            required property var entry

            text: entry.text
            prominent: entry.prominent
        }
    }

    readonly property Component subMenu: Component {
        Menu {}
    }
}
