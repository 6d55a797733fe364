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

            width: Math.min(root.room, Math.max(520, Math.min(800, root.tall * 16 / 9)))
            spacing: 10

            PlayerStage {
                readonly property real natural: Math.round(width * 9 / 16)

                width: parent.width
                height: width < 520 ? natural : Math.max(320, Math.min(natural, root.tall))
                focus: true
                playback: root.playback
            }

            PlayerControls {
                width: parent.width
                sheet: root.model
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
