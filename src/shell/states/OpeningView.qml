pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What stands beside the sidebar while the disk lets one wait; nothing while it is quick.
Row {
    id: root

    property bool late: false

    spacing: 8
    opacity: late ? 1 : 0
    visible: late

    Behavior on opacity {
        NumberAnimation { duration: Motion.time(200) }
    }

    Timer {
        interval: 500
        running: true
        onTriggered: root.late = true
    }

    Spinner {
        anchors.verticalCenter: parent.verticalCenter
    }

    Label {
        text: "Opening…"
        color: Theme.secondaryLabel
    }
}
