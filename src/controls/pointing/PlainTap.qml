pragma ComponentBehavior: Bound

import QtQuick

// Clicks by the left button and taps by a finger, on the item that it stands in.
TapHandler {
    id: root

    signal clicked(modifiers: int)
    signal doubleClicked(modifiers: int) // after the second click has been told

    onTapped: clicked(Number(root.point.modifiers))
    onDoubleTapped: doubleClicked(Number(root.point.modifiers))
}
