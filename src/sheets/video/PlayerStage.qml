pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// Where a clip is seen, or told why it is not.
Rectangle {
    id: root

    required property ClipPlayback playback

    color: "black"
    activeFocusOnTab: true

    Accessible.role: Accessible.Graphic
    Accessible.name: "Video"
    Accessible.description: broken.visible ? broken.text : soundAlone.visible ? soundAlone.text : ""
    Accessible.focusable: true

    ClipView {
        anchors.fill: parent
        playback: root.playback
        visible: !root.playback.broken
    }

    StageMessage {
        id: soundAlone

        anchors.centerIn: parent
        visible: root.playback.soundAlone && !broken.visible
        symbol: "waveform"
        text: "Sound only"
    }

    StageMessage {
        id: broken

        anchors.centerIn: parent
        visible: root.playback.broken
        symbol: "exclamationmark.triangle.fill"
        text: root.playback.position > 0 ? "The rest of this clip can't be played" : "This clip can't be played"
    }

    Spinner {
        anchors.centerIn: parent
        width: 24
        height: 24
        color: "white"
        running: patience.over && root.playback.waiting
    }

    Timer {
        id: patience

        property bool over: false

        interval: 400 // a clip on a quick disk is there before
        running: root.playback.waiting
        onRunningChanged: if (running) over = false
        onTriggered: over = true
    }

    FocusRing {
        shown: root.activeFocus && FocusOrigin.keyboard
    }

    PlainTap {
        onClicked: root.playback.toggle()
    }
}
