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
        const there = menu.itemAt(place);
        if (entry.text === "") {
            if (!(there as MenuSeparator))
                put(menu, place, divider, {});
        } else if (entry.telling) {
            if (there as TileMenuLine)
                (there as TileMenuLine).entry = entry;
            else
                put(menu, place, line, {entry: entry});
        } else if (there as TileMenuItem) {
            (there as TileMenuItem).entry = entry;
        } else {
            put(menu, place, command, {entry: entry});
        }
    }

    function put(menu: Menu, place: int, component: Component, properties: var) {
        drop(menu, place);
        menu.insertItem(place, component.createObject(menu.contentItem, properties) as Item);
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
        MenuSeparator {}
    }

    readonly property Component line: Component {
        TileMenuLine {}
    }

    readonly property Component subMenu: Component {
        Menu {}
    }
}
