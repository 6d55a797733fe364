pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The help text of the item that it stands in, shown as a tool tip after a moment's hovering.
//   Rectangle { Help { text: "Drag to reorder" } }
// A control that knows its own hovering binds `shown`.
Item {
    id: root

    required property string text
    property bool shown: hover.hovered
    property int delay: 700

    anchors.fill: parent
    Accessible.ignored: true

    HoverHandler {
        id: hover
    }

    readonly property bool due: shown && text !== "" && !pause.running
    property ToolTip tip: null // while it shows

    onDueChanged: {
        if (due)
            tip = making.createObject(root) as ToolTip;
        else if (tip)
            tip.leave();
    }

    readonly property Component making: Component {
        ToolTip {
            text: root.text
            visible: true
        }
    }

    Timer {
        id: pause

        interval: root.delay
        running: root.shown && root.text !== ""
    }
}
