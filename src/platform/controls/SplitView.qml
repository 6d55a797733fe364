pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Panes beside each other with a fine line between them that can be dragged.
//   SplitView { Sidebar { SplitView.minimumWidth: 200; SplitView.maximumWidth: 340 } … }
T.SplitView {
    id: root

    handle: Item {
        id: grip

        readonly property bool sideways: root.orientation === Qt.Horizontal

        implicitWidth: sideways ? 1 : root.width
        implicitHeight: sideways ? root.height : 1
        containmentMask: Item {
            x: grip.sideways ? -4 : 0
            y: grip.sideways ? 0 : -4
            width: grip.sideways ? 9 : root.width
            height: grip.sideways ? root.height : 9
        }

        Rectangle {
            anchors.fill: parent
            color: T.SplitHandle.pressed ? Theme.thin(Theme.primary, 0.25) : Theme.separator
        }
    }
}
