pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The frame of everything that takes text; its ring shows with any focus, since typing goes there.
RoundedRectangle {
    id: root

    required property bool focused

    radius: Theme.fieldRadius
    color: Theme.fieldFill
    edgeWidth: 1
    edgeColor: focused ? Theme.focusRing : Theme.fieldBorder

    FocusRing {
        shown: root.focused
        base: root.radius
    }
}
