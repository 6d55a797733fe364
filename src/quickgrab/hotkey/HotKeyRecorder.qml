pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// Shows the key that summons the panel; a click, Space or Return makes it wait for another one, Esc
// or a click elsewhere leaves it at the old one. Put `settings.problem` beside it.
//   HotKeyRecorder { settings: … }
KeyCatcher {
    id: root

    readonly property bool recording: settings?.recording ?? false

    function begin() {
        forceActiveFocus(Qt.MouseFocusReason);
        settings.recording = true;
    }

    implicitWidth: Math.max(130, label.implicitWidth + 16)
    implicitHeight: 24
    activeFocusOnTab: true
    onActiveFocusChanged: if (!activeFocus && settings) settings.recording = false
    Keys.onSpacePressed: event => {
        event.accepted = !recording;
        if (!recording)
            begin();
    }
    Keys.onReturnPressed: event => {
        event.accepted = !recording;
        if (!recording)
            begin();
    }
    Keys.priority: Keys.AfterItem
    Component.onDestruction: if (settings) settings.recording = false

    Accessible.role: Accessible.Button
    Accessible.name: "Quick grab shortcut, " + label.text
    Accessible.description: settings?.problem ?? ""
    Accessible.pressed: recording
    Accessible.onPressAction: begin()

    RoundedRectangle {
        anchors.fill: parent
        radius: 6
        color: root.recording ? Theme.thin(Theme.accent, 0.18) : Theme.thin(Theme.label, 0.08)

        FocusRing {
            shown: root.activeFocus && (root.recording || FocusOrigin.keyboard)
        }
    }

    Label {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 16)
        text: root.recording ? "Type a shortcut…" : root.settings?.shortcut ?? ""
        font: Theme.font(12, Font.Medium)
        color: root.recording ? Theme.secondaryLabel : Theme.label
        Accessible.ignored: true
    }

    PlainTap {
        onClicked: root.begin()
    }
}
