pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// One rule: its kind, what it says, and a button that removes it.
FocusScope {
    id: root

    required property UsageNotesSheet sheet
    required property int index
    required property int kind
    required property string text

    function beginTyping() {
        guidance.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitHeight: Math.max(picker.height, frame.height)

    PopUpPicker {
        id: picker

        width: 104
        accessibleName: "Kind"
        currentIndex: root.kind
        options: [
            PickerOption { text: "Do"; symbol: "checkmark.circle.fill" },
            PickerOption { text: "Don't"; symbol: "xmark.octagon.fill" },
            PickerOption { text: "Note"; symbol: "info.circle.fill" }
        ]
        onActivated: index => root.sheet.setKind(root.index, index)
    }

    FieldBackground {
        id: frame

        anchors.left: picker.right
        anchors.leftMargin: 8
        anchors.right: remove.left
        anchors.rightMargin: 4
        height: guidance.height
        focused: guidance.activeFocus

        TextArea {
            id: guidance

            width: parent.width
            leftPadding: 7
            rightPadding: 7
            topPadding: (Theme.controlHeight(ControlSize.Regular) - Theme.body.pixelSize * 1.2) / 2
            bottomPadding: topPadding + pagerHeight
            placeholderText: "Guidance"
            whole: root.text
            focus: true
            onEdited: text => root.sheet.setText(root.index, text)
        }
    }

    Button {
        id: remove

        anchors.right: parent.right
        symbol: "trash"
        help: "Remove Rule"
        kind: Button.Borderless
        destructive: true
        onClicked: root.sheet.remove(root.index)
    }
}
