pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A row of a FormSection: a text at the start, a control at the end, a note under both.
//   FormRow { text: "Theme"; PopUpPicker { accessibleName: "Theme" … } }
Item {
    id: root

    property string text: ""
    property string note: ""
    default property alias control: trailing.data

    width: parent?.width ?? 0
    implicitHeight: Math.max(44, lines.height + 18, trailing.height + 16)

    Divider {
        x: 12
        width: root.width - 24
        visible: root.y > 0
    }

    Column {
        id: lines

        x: 12
        width: root.width - 24 - (root.note === "" || trailing.width > 0 ? trailing.width + 12 : 0)
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        Label {
            width: parent.width
            visible: text !== ""
            text: root.text
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: root.note
            font: Theme.subheadline
            color: Theme.secondaryLabel
            wrapMode: Text.Wrap
        }
    }

    Row {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
    }
}
