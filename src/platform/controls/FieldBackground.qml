pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The frame of everything that takes text; its ring shows with any focus, since typing goes there.
Rectangle {
    id: root

    required property bool focused

    radius: Theme.fieldRadius
    color: Theme.fieldFill
    border.width: 1
    border.color: focused ? Theme.focusRing : Theme.fieldBorder

    FocusRing {
        shown: root.focused
        base: root.radius
    }
}
