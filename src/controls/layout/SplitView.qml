pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Panes beside each other with a fine line between them that can be dragged, or moved by arrows.
//   SplitView { Sidebar { SplitView.minimumWidth: 200; SplitView.maximumWidth: 340 } … }
T.SplitView {
    id: root

    handle: Item {
        id: grip

        readonly property bool sideways: root.orientation === Qt.Horizontal
        readonly property int step: 16

        // Resizes the pane that ends here.
        function move(by: real) {
            for (let i = 0; i + 1 < root.count; ++i) {
                const pane = root.itemAt(i);
                const sizes = pane.T.SplitView;
                if (sideways && Math.abs(pane.x + pane.width - x) < 1)
                    sizes.preferredWidth = Math.max(sizes.minimumWidth, Math.min(sizes.maximumWidth, (sizes.preferredWidth > 0 ? sizes.preferredWidth : pane.width) + by));
                else if (!sideways && Math.abs(pane.y + pane.height - y) < 1)
                    sizes.preferredHeight = Math.max(sizes.minimumHeight, Math.min(sizes.maximumHeight, (sizes.preferredHeight > 0 ? sizes.preferredHeight : pane.height) + by));
            }
        }

        implicitWidth: sideways ? 1 : root.width
        implicitHeight: sideways ? root.height : 1
        activeFocusOnTab: true
        containmentMask: Item {
            x: grip.sideways ? -4 : 0
            y: grip.sideways ? 0 : -4
            width: grip.sideways ? 9 : root.width
            height: grip.sideways ? root.height : 9
        }

        Keys.onPressed: event => {
            const back = sideways ? Qt.Key_Left : Qt.Key_Up;
            const forth = sideways ? Qt.Key_Right : Qt.Key_Down;
            event.accepted = event.key === back || event.key === forth;
            if (event.accepted)
                move(event.key === back ? -step : step);
        }
        Accessible.role: Accessible.Splitter
        Accessible.name: "Divider"

        KeyboardFocus {
            id: keyboard
            item: grip
        }

        Rectangle {
            anchors.fill: parent
            anchors.margins: keyboard.used ? -1 : 0
            color: keyboard.used ? Theme.focusRing : T.SplitHandle.pressed ? Theme.thin(Theme.primary, 0.25) : Theme.separator
        }
    }
}
