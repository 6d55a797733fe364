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

    readonly property int head: Math.max(44, trailing.height + 16) // the height beside the control
    readonly property bool tall: trailing.height > 60 // the text stands at its top then

    width: parent?.width ?? 0
    implicitHeight: noted.visible ? noted.y + noted.height + 11 : head

    Divider {
        x: 12
        width: root.width - 24
        visible: root.y > 0
    }

    Label {
        x: 12
        y: root.tall ? trailing.y + 3 : Math.round((root.head - height) / 2)
        width: root.width - 36 - trailing.width
        visible: text !== ""
        text: root.text
    }

    Row {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: 12
        y: Math.round((root.head - height) / 2)
        spacing: 8
    }

    Label {
        id: noted

        x: 12
        y: root.head - 5
        width: root.width - 24
        visible: text !== ""
        text: root.note
        font: Theme.subheadline
        color: Theme.secondaryLabel
        wrapMode: Text.Wrap
        lineHeight: 1.15
    }
}
