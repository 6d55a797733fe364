pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T

// The help text of the item that it stands in, shown as a tool tip after a moment's hovering.
//   Rectangle { Help { text: "Drag to reorder" } }
// A control that knows its own hovering binds `shown`.
Item {
    id: root

    required property string text
    property bool shown: hover.hovered
    property int delay: 700
    property real below: 0 // the height of what beneath the item belongs to it, and stays in sight

    anchors.fill: parent
    Accessible.ignored: true

    property bool spent: false // pressed since the pointer came

    HoverHandler {
        id: hover

        onHoveredChanged: root.spent = false
    }

    PointHandler {
        acceptedButtons: Qt.AllButtons
        onActiveChanged: root.spent = true
    }

    readonly property bool due: shown && !spent && text !== "" && !pause.running
    property T.ToolTip tip: null // while it shows

    // Named by its file: a type would be loaded with every button.
    onDueChanged: {
        if (due)
            tip = Qt.createComponent("ToolTip.qml").createObject(root, {text: Qt.binding(() => root.text), below: root.below}) as T.ToolTip;
        else if (tip)
            tip.close();
    }

    Timer {
        id: pause

        interval: root.delay
        running: root.shown && root.text !== ""
    }
}
