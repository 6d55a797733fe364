pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// Plays a clip: its picture, what steers it, and its title.
Sheet {
    id: root

    required property VideoPlayerSheet model

    readonly property ClipPlayback playback: model.playback
    readonly property Item around: parent
    readonly property real room: (around?.width ?? 760) - 2 * (margins + padding)
    readonly property real below: 88 // the controls, the title and the gaps
    readonly property real tall: (around?.height ?? 600) - 2 * (margins + padding) - below

    accessibleName: model.title
    defaultButton: done
    padding: 16

    Component.onCompleted: playback.play()
    onAboutToHide: playback.pause()

    FocusScope {
        id: content

        focus: true
        width: column.width
        height: column.height

        Keys.onPressed: event => event.accepted = root.model.press(event.key, Number(event.modifiers))

        Column {
            id: column

            width: Math.max(520, Math.min(800, root.room, root.tall * 16 / 9))
            spacing: 10

            Rectangle {
                id: stage

                width: parent.width
                height: Math.max(320, Math.min(Math.round(width * 9 / 16), root.tall))
                color: "black"
                focus: true
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
                    shown: stage.activeFocus && FocusOrigin.keyboard
                }

                TapHandler {
                    onTapped: root.playback.toggle()
                }
            }

            Item {
                width: parent.width
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
                    text: root.model.elapsed
                    sample: root.model.remaining
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
                    Keys.onPressed: event => event.accepted = root.model.press(event.key, Number(event.modifiers))

                    Binding on value {
                        value: root.playback.position
                        when: !seek.pressed
                    }
                }

                TimeLabel {
                    id: remaining

                    anchors.right: mute.left
                    anchors.rightMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    horizontalAlignment: Text.AlignLeft
                    text: root.model.remaining
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
                        when: !volume.pressed
                    }
                }
            }

            Item {
                width: parent.width
                height: done.height

                Label {
                    anchors.left: parent.left
                    anchors.right: done.left
                    anchors.rightMargin: 12
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.model.title
                    font: Theme.caption
                    color: Theme.secondaryLabel
                    elide: Text.ElideMiddle
                    horizontalAlignment: Text.AlignLeft
                }

                Button {
                    id: done

                    anchors.right: parent.right
                    text: "Done"
                    kind: Button.Prominent
                    onClicked: root.close()
                }
            }
        }
    }
}
