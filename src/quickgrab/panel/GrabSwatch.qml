pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// A colour; a click copies it.
Item {
    id: root

    required property grabThing thing
    required property bool hovered
    required property bool pressed
    required property bool marked // it is the current entry

    RoundedRectangle {
        anchors.fill: parent
        anchors.margins: root.pressed ? 2 : 0
        radius: 7
        color: root.thing.color
        edgeWidth: root.hovered ? 1 : 0.5
        edgeColor: Theme.thin(Theme.primary, root.hovered ? 0.45 : 0.12)
    }

    FocusRing {
        shown: root.marked
        base: 7
        gap: 1
    }
}
