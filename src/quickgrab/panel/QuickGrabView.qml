pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// The panel's content. The keyboard is in the search at each opening; Down leads into the list,
// letters typed there go back to the search.
FocusScope {
    id: root

    required property QuickGrab grab

    readonly property bool shows: grab.state === QuickGrab.List

    // The pointer has moved since the panel came up under it.
    property bool pointed: false
    property point came: Qt.point(-1, -1)

    function begin() {
        pointed = false;
        came = Qt.point(-1, -1);
        header.field.forceActiveFocus(Qt.ActiveWindowFocusReason);
        header.field.selectAll();
    }

    function takeKey(event: KeyEvent) {
        const digit = event.key - Qt.Key_0;
        const isList = list.activeFocus;
        event.accepted = true;
        if (event.key === Qt.Key_Escape)
            grab.closeRequested();
        else if (event.modifiers === Qt.ControlModifier && digit >= 1 && digit <= 9)
            grab.copyColor(digit);
        else if (event.modifiers === Qt.ControlModifier && event.key === Qt.Key_Comma && grab.hasSettings)
            grab.openSettingsRequested();
        else if (event.key === Qt.Key_Down && !isList && shows)
            list.enter();
        else if (isList && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter || event.key === Qt.Key_Space))
            chosen();
        else if (isList && KeyText.writes(event.text, event.modifiers))
            header.field.take(event.text);
        else
            event.accepted = false;
    }

    // A picture's file is what the keyboard has in place of a drag.
    function chosen() {
        grab.copy(grab.current);
        grab.copyFile(grab.current);
    }

    Keys.onPressed: event => takeKey(event)

    HoverHandler {
        onPointChanged: {
            const at = point.scenePosition;
            if (root.came.x < 0)
                root.came = at;
            else if (at !== root.came)
                root.pointed = true;
        }
    }

    PanelHeader {
        id: header

        width: parent.width
        height: implicitHeight
        focus: true
        grab: root.grab
        onAccepted: root.chosen()
    }

    Divider {
        id: line

        y: header.height
        width: parent.width
    }

    GrabListView {
        id: list

        anchors.top: line.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.shows
        grab: root.grab
        marked: root.grab.search.trim() !== "" && header.field.activeFocus
        pointed: root.pointed
        onLeftAtTop: root.begin()
    }

    LazyItem {
        anchors.top: line.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        active: !root.shows
        sourceComponent: PanelPlaceholder {
            grab: root.grab
        }
    }

    Toast {
        message: root.grab.flashText
        symbol: "checkmark.circle.fill"
        material: Theme.thickMaterial
        edge: Theme.thin(Theme.primary, 0.08)
        font: Theme.font(12, Font.Medium)
        sidePadding: 12
        verticalPadding: 7
        blur: 6
        drop: 2
        bottomDistance: 14
    }
}
