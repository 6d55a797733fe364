pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// How far from its new place a thing is still drawn after its place has jumped: it springs there
// while `active`. Layout and hit tests know the new place at once.
//   Item { y: …; Rectangle { y: slide.offset } SettlingOffset { id: slide; y: parent.y } }
QtObject {
    id: root

    required property real y
    required property bool active
    property real offset: 0
    property real last: 0
    property SpringNumber spring: null // made at the first jump

    // The first layout is no jump; it comes in the turn of the event loop that makes the item.
    property bool placed: false
    readonly property Timer placing: Timer {
        interval: 0
        running: true
        onTriggered: root.placed = true
    }

    onYChanged: {
        const jump = last - y;
        last = y;
        if (!active || !placed || Math.abs(jump) < 1)
            return;
        offset += jump;
        if (!spring)
            spring = making.createObject(root) as SpringNumber;
        spring.restart();
    }

    readonly property Component making: Component {
        SpringNumber {
            target: root
            property: "offset"
            to: 0
            response: 0.5
            dampingFraction: 0.85
        }
    }
}
