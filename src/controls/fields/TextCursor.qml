pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The blinking insertion point, in the accent.
RoundedRectangle {
    id: root

    required property Item field // a text item

    width: 1.5
    radius: 1
    color: Theme.accentText
    visible: field.activeFocus && blink.on

    Timer {
        id: blink

        property bool on: true

        interval: 530
        repeat: true
        running: root.field.activeFocus
        onTriggered: on = !on
        onRunningChanged: on = true
    }

    Connections {
        target: root.field
        ignoreUnknownSignals: true

        function onCursorPositionChanged() {
            blink.on = true;
            blink.restart();
        }
    }
}
