pragma ComponentBehavior: Bound

import TarnLoft.Controls
import TarnLoft.Workspace

// Drags a tile or a row of text out of the item that it stands in.
DragOutHandler {
    id: root

    required property Tile tile

    onCarried: grabbed => tile.drag(view, grabbed, radius)
}
