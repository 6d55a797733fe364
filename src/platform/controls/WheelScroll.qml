pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Scrolling as on a desktop for a Flickable or a view: a notch of the wheel glides, a touchpad moves
// pixel by pixel, and a press of the mouse drags no content; touch flicks as ever.
//   ListView { id: list; WheelScroll { flickable: list } }
QtObject {
    id: root

    required property Flickable flickable
    property bool sideways: false
    property real notch: 84 // points that one notch scrolls
    property real target: 0

    readonly property real least: sideways ? flickable.originX - flickable.leftMargin : flickable.originY - flickable.topMargin
    readonly property real most: sideways
        ? Math.max(least, flickable.originX + flickable.contentWidth - flickable.width + flickable.rightMargin)
        : Math.max(least, flickable.originY + flickable.contentHeight - flickable.height + flickable.bottomMargin)
    readonly property real position: sideways ? flickable.contentX : flickable.contentY

    function bounded(value: real): real {
        return Math.max(least, Math.min(most, value));
    }

    function moveTo(value: real) {
        if (sideways)
            flickable.contentX = value;
        else
            flickable.contentY = value;
    }

    function scroll(pixels: real, notches: real) {
        if (pixels !== 0) {
            glide.stop();
            moveTo(bounded(position - pixels));
            return;
        }
        target = bounded((glide.running ? target : position) - notches * notch);
        glide.restart();
    }

    readonly property NumberAnimation glide: NumberAnimation {
        target: root.flickable
        property: root.sideways ? "contentX" : "contentY"
        to: root.target
        duration: Motion.time(130)
        easing.type: Easing.OutCubic
    }

    readonly property WheelHandler wheel: WheelHandler {
        parent: root.flickable
        target: null
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        orientation: root.sideways ? Qt.Horizontal : Qt.Vertical
        onWheel: event => root.sideways ? root.scroll(event.pixelDelta.x, event.angleDelta.x / 120)
                                        : root.scroll(event.pixelDelta.y, event.angleDelta.y / 120)
    }

    readonly property HoverHandler mouse: HoverHandler {
        parent: root.flickable
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
    }

    readonly property Binding stillness: Binding {
        target: root.flickable
        property: "interactive"
        value: !root.mouse.hovered
    }
}
