pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// What steers a player: the clip, its place and its sound.
Item {
    id: root

    required property VideoPlayerSheet sheet

    readonly property ClipPlayback playback: sheet.playback

    height: play.height
    enabled: !root.playback.opening && (!root.playback.broken || root.playback.duration > 0)

    Button {
        id: play

        kind: Button.Borderless
        symbol: root.playback.playing ? "pause.fill" : "play.fill"
        symbolSize: 16
        help: root.playback.playing ? "Pause" : "Play"
        onClicked: root.playback.toggle()
    }

    TimeLabel {
        id: elapsed

        anchors.left: play.right
        anchors.leftMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignRight
        text: root.sheet.elapsed
        sample: root.sheet.remaining
        Accessible.name: "Elapsed " + text
    }

    Slider {
        id: seek

        anchors.left: elapsed.right
        anchors.leftMargin: 8
        anchors.right: remaining.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        accessibleName: "Position"
        to: Math.max(root.playback.duration, 0.001)
        stepSize: 5
        snapMode: Slider.NoSnap
        enabled: root.playback.duration > 0
        onMoved: root.playback.seek(value)
        Keys.onPressed: event => event.accepted = root.sheet.press(event.key, Number(event.modifiers))

        Binding on value {
            value: root.playback.position
            when: !seek.pressed
            restoreMode: Binding.RestoreNone
        }
    }

    TimeLabel {
        id: remaining

        anchors.right: mute.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        text: root.sheet.remaining
        sample: text
        Accessible.name: "Remaining " + text
    }

    Button {
        id: mute

        anchors.right: volume.left
        anchors.rightMargin: 4
        kind: Button.Borderless
        symbol: root.playback.muted || root.playback.volume === 0 ? "speaker.slash.fill" : "speaker.wave.2.fill"
        symbolSize: 15
        help: root.playback.muted ? "Unmute" : "Mute"
        onClicked: root.playback.muted = !root.playback.muted
    }

    Slider {
        id: volume

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: 84
        accessibleName: "Volume"
        stepSize: 0.1
        snapMode: Slider.NoSnap
        onMoved: root.playback.volume = value

        Binding on value {
            value: root.playback.muted ? 0 : root.playback.volume
            when: !volume.pressed // a key presses it too, and goes on from the value that is there
            restoreMode: Binding.RestoreNone
        }
    }
}
