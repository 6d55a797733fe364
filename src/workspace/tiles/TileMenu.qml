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
        if (root.tile)
            root.tile.menuOpen = false; // it may be open for another one
        root.tile = tile;
        fill(root, tile.menuEntries());
        popup(view, at.x, at.y);
    }

    function fill(menu: Menu, entries: var) {
        menu.filling = true;
        for (let place = 0; place < entries.length; ++place) {
            if (entries[place].entries.length > 0)
                putMenu(menu, place, entries[place]);
            else
                putItem(menu, place, entries[place]);
        }
        while (menu.count > entries.length)
            drop(menu, menu.count - 1);
        menu.filling = false;
    }

    function putMenu(menu: Menu, place: int, entry: var) {
        let inner = menu.menuAt(place) as Menu;
        if (!inner) {
            drop(menu, place);
            inner = subMenu.createObject(menu) as Menu;
            menu.insertMenu(place, inner);
        }
        inner.title = entry.text;
        fill(inner, entry.entries);
    }

    function putItem(menu: Menu, place: int, entry: var) {
        const wanted = entry.text === "" ? divider : entry.telling ? line : command;
        const there = menu.itemAt(place);
        const known = there as TileMenuItem;
        if (wanted === command && known) {
            known.entry = entry;
        } else if (wanted !== divider || !(there as MenuSeparator)) {
            drop(menu, place);
            menu.insertItem(place, wanted.createObject(menu.contentItem, {entry: entry}) as Item);
        }
    }

    // What stands there, if anything does.
    function drop(menu: Menu, place: int) {
        const inner = menu.takeMenu(place);
        const item = inner ? null : menu.takeItem(place);
        inner?.destroy();
        item?.destroy();
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
