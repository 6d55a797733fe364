pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A control as it looks with the keyboard's focus, of which a window has only one.
Item {
    id: root

    property int radius: 6
    property int gap: 0
    default property alias control: holder.data

    width: holder.width
    height: holder.height

    Item {
        id: holder

        width: childrenRect.width
        height: childrenRect.height
    }

    FocusRing {
        shown: true
        base: root.radius
        gap: root.gap
    }
}
