pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What lies between the page and the sidebar over it: it dims the page, and a press on it folds the
// sidebar away.
Rectangle {
    id: root

    required property Sidebar sidebar

    color: Theme.dim
    opacity: sidebar.open ? 1 : 0
    visible: opacity > 0
    Accessible.ignored: true

    Behavior on opacity {
        NumberAnimation { duration: Motion.time(160) }
    }

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: root.sidebar.open = false
        onWheel: wheel => wheel.accepted = true
    }
}
