pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What a row of the sidebar shows while the focus or the pointer is on it.
Item {
    id: root

    required property bool focused
    required property bool overHandle
    required property bool bare // nothing marks the row, so that its handle has to be shown
    required property real handleEnd

    FocusRing {
        anchors.margins: 0
        shown: root.focused
        base: Theme.fieldRadius - 3
    }

    Symbol {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: root.bare
        name: "line.3.horizontal"
        size: 11
        color: Theme.tertiaryLabel
    }

    Item {
        width: root.handleEnd
        height: parent.height

        Help {
            text: "Drag to reorder"
            shown: root.overHandle
        }
    }
}
