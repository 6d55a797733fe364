pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The dots by which a row is dragged, in front of it. What drags stands in it.
Item {
    id: root

    required property bool shown

    width: 16
    height: 20
    Accessible.ignored: true

    LazyItem {
        anchors.centerIn: parent
        active: root.shown
        sourceComponent: Grid {
            columns: 2
            spacing: 2

            Repeater {
                model: 6
                delegate: Rectangle {
                    width: 2
                    height: 2
                    radius: 1
                    color: Theme.tertiaryLabel
                }
            }
        }
    }

    HoverHandler {
        cursorShape: Qt.OpenHandCursor
    }
}
