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
    property bool placed: false // the first layout is no jump
    property SpringNumber spring: null // made at the first jump

    Component.onCompleted: Qt.callLater(place) // qmllint disable
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

    function place() {
        placed = true;
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
