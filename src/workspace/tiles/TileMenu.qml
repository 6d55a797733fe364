pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be done with a tile.
Menu {
    id: root

    required property Tile tile

    title: root.tile.name || root.tile.description

    MenuItem {
        text: root.tile.notesText
        onAfterClosing: root.tile.editNotes()
    }
}
