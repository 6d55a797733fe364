pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// The panel's window: the panel and, where the screen is composed, room for its shadow about it.
Window {
    id: root

    required property QuickGrab grab
    property int rim: 0

    // An X server that composes nothing would show what is under it as black.
    readonly property color solid: Qt.rgba(Theme.regularMaterial.r, Theme.regularMaterial.g, Theme.regularMaterial.b, 1)

    function begin() {
        view.begin();
    }

    title: "Quick Grab"
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    // Cut to its shape, it shows no more than the panel's own ground at the cut.
    color: rim > 0 ? "transparent" : solid

    // The rim belongs to what lies behind.
    MouseArea {
        anchors.fill: parent
        enabled: root.rim > 0
        onPressed: root.grab.closeRequested()
    }

    Shadow {
        anchors.fill: ground
        visible: root.rim > 0
        radius: ground.radius
        blur: 12
        drop: 5
        strength: Theme.dark ? 0.6 : 0.28
    }

    RoundedRectangle {
        id: ground

        anchors.fill: parent
        anchors.margins: root.rim
        radius: Theme.panelRadius
        color: root.solid
        edgeWidth: 1
        edgeColor: Theme.panelBorder

        // A press on the panel isn't one on the rim.
        MouseArea {
            anchors.fill: parent
        }

        QuickGrabView {
            id: view

            anchors.fill: parent
            focus: true
            grab: root.grab
        }
    }
}
