pragma ComponentBehavior: Bound

import QtQuick

// Clicks by the left button and taps by a finger, on the item that it stands in. A mouse that the
// desktop reports as a touchpad counts as a finger to the toolkit, which then takes any button.
TapHandler {
    id: root

    signal clicked(modifiers: int)
    signal doubleClicked(modifiers: int) // after the second click has been told

    function isPlain(button: int): bool {
        return button === Qt.LeftButton || button === Qt.NoButton;
    }

    onTapped: (point, button) => {
        if (isPlain(button))
            clicked(Number(root.point.modifiers));
    }
    onDoubleTapped: (point, button) => {
        if (isPlain(button))
            doubleClicked(Number(root.point.modifiers));
    }
}
