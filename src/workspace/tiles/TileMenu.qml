pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be done with a tile. Made at each opening.
Menu {
    id: root

    required property Tile tile

    title: root.tile.name || root.tile.description
    onAboutToShow: tile.menuOpen = true
    onAboutToHide: tile.menuOpen = false
    onClosed: destroy(1000) // behind what its entry does then

    MenuItem {
        text: root.tile.notesText
        onAfterClosing: root.tile.editNotes()
    }
}
