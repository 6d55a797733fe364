pragma ComponentBehavior: Bound

import QtQuick

// The pointer on a row of the sidebar: a click opens it, a drag from its handle moves it, a right
// click asks for its menu.
MouseArea {
    id: root

    required property real handleEnd // the handle lies in front of it; 0 for a row that stays

    readonly property bool overHandle: containsMouse && mouseX < handleEnd
    property bool dragging: false
    property bool wasDrag: false // since the press, so that it is no click
    property point start

    signal taken // pressed, by a button that means something
    signal activated
    signal menuRequested(x: real, y: real)
    signal dragged(x: real, y: real)
    signal dropped

    function endDrag() {
        if (!dragging)
            return;
        dragging = false;
        dropped();
    }

    hoverEnabled: true
    preventStealing: true
    acceptedButtons: Qt.AllButtons // to evaluate "Left | Right" would cost the first frame 5 ms
    cursorShape: dragging ? Qt.ClosedHandCursor : overHandle ? Qt.OpenHandCursor : Qt.ArrowCursor

    onPressed: mouse => {
        mouse.accepted = mouse.button === Qt.LeftButton || mouse.button === Qt.RightButton;
        wasDrag = false;
        start = Qt.point(mouse.x, mouse.y);
        if (mouse.accepted)
            taken(); // first, as the menu takes the keyboard
        if (mouse.button === Qt.RightButton)
            menuRequested(mouse.x, mouse.y);
    }
    onPositionChanged: mouse => {
        if (!(pressedButtons & Qt.LeftButton) || start.x >= handleEnd)
            return;
        if (Math.hypot(mouse.x - start.x, mouse.y - start.y) > Application.styleHints.startDragDistance)
            dragging = wasDrag = true;
        if (dragging)
            dragged(mouse.x, mouse.y);
    }
    onReleased: endDrag()
    onCanceled: endDrag()
    onClicked: mouse => {
        if (mouse.button === Qt.LeftButton && !wasDrag)
            activated();
    }
}
