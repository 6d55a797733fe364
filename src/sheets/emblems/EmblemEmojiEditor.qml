pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// An emoji, typed or one of some, and what it stands on.
Column {
    id: root

    required property EmblemPicker picker

    spacing: 14

    LabeledField {
        width: parent.width
        label: "Emoji"

        TextField {
            width: parent.width
            focus: true
            accessibleName: "Emoji"
            placeholderText: root.picker.presets()[0]
            font: Theme.emoji(18)
            text: root.picker.emoji
            onTextEdited: {
                root.picker.emoji = text;
                text = Qt.binding(() => root.picker.emoji);
            }
        }
    }

    Label {
        width: parent.width
        text: root.picker.emojiTip()
        font: Theme.subheadline
        color: Theme.secondaryLabel
        wrapMode: Text.Wrap
    }

    Grid {
        id: presets

        width: parent.width
        columns: 6
        spacing: 6

        Repeater {
            model: root.picker.presets()
            delegate: Button {
                required property string modelData

                width: (presets.width - 30) / 6
                height: 48
                text: modelData
                font: Theme.emoji(24)
                leftPadding: 0
                kind: modelData === root.picker.emoji ? Button.Bordered : Button.Borderless
                onClicked: root.picker.emoji = modelData
            }
        }
    }

    EmblemGround {
        width: parent.width
        picker: root.picker
    }
}
