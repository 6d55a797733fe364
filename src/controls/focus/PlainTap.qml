pragma ComponentBehavior: Bound

import QtQuick

// Clicks by the left button and taps by a finger, on the item that it stands in. A mouse that the
// desktop reports as a touchpad counts as a finger to the toolkit, which then takes any button.
TapHandler {
    id: root

    signal clicked(modifiers: int)

    onTapped: (point, button) => {
        if (button === Qt.LeftButton || button === Qt.NoButton)
            clicked(Number(root.point.modifiers));
    }
}
