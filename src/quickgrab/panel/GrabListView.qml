pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// What can be grabbed, section by section. Arrows move the choice, Return and Space copy it, and
// Up at the top leaves for the search.
FocusScope {
    id: root

    required property QuickGrab grab
    property bool marked: false // the current entry shows as such, whoever has the keyboard

    property bool pointed: true // help may come up under the pointer

    signal leftAtTop

    function enter() {
        if (grab.current >= 0 || grab.move(QuickGrab.First))
            forceActiveFocus();
    }

    function reveal() {
        const room = grab.currentRoom;
        if (grab.current < 0)
            return;
        const top = room.y < 60 ? 0 : room.y - 8;
        const bottom = room.y + room.height + 2 * area.margin - 4;
        if (top < area.contentY)
            area.contentY = top;
        else if (bottom > area.contentY + area.height)
            area.contentY = bottom - area.height;
    }

    activeFocusOnTab: true
    onActiveFocusChanged: if (activeFocus && grab.current < 0) grab.move(QuickGrab.First)
    Keys.onPressed: event => {
        const steps = new Map([[Qt.Key_Left, QuickGrab.Left], [Qt.Key_Right, QuickGrab.Right],
                [Qt.Key_Up, QuickGrab.Up], [Qt.Key_Down, QuickGrab.Down],
                [Qt.Key_PageUp, QuickGrab.PageUp], [Qt.Key_PageDown, QuickGrab.PageDown],
                [Qt.Key_Home, QuickGrab.First], [Qt.Key_End, QuickGrab.Last]]);
        const step = steps.get(event.key);
        if (step === undefined || event.modifiers & (Qt.ControlModifier | Qt.AltModifier))
            return;
        event.accepted = true;
        if (!grab.move(step) && step === QuickGrab.Up)
            leftAtTop();
    }

    Accessible.role: Accessible.List
    Accessible.name: "Assets"

    ScrollArea {
        id: area

        readonly property int margin: 12

        function look() {
            root.grab.setSight(contentY - margin, height);
        }

        anchors.fill: parent
        followsFocus: false
        contentHeight: root.grab.contentHeight + 2 * margin
        onContentYChanged: look()
        onHeightChanged: look()
        Component.onCompleted: look()

        GrabViews {
            x: area.margin
            y: area.margin
            grab: root.grab
            view: GrabThingView {
                grab: root.grab
                pointed: root.pointed
                keyboard: root.marked || root.activeFocus && FocusOrigin.keyboard
            }
        }
    }

    Connections {
        target: root.grab

        function onRewound() {
            area.contentY = 0;
        }

        function onCurrentChanged() {
            root.reveal();
        }
    }
}
