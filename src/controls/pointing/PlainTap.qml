pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Clicks by the left button and taps by a finger, on the item that it stands in. None that are for
// a popup over it.
TapHandler {
    id: root

    signal clicked(modifiers: int)
    signal doubleClicked(modifiers: int) // after the second click has been told

    onTapped: if (!PopupCover.covers(parent, point.scenePosition)) clicked(Number(root.point.modifiers))
    onDoubleTapped: if (!PopupCover.covers(parent, point.scenePosition)) doubleClicked(Number(root.point.modifiers))
}
