pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A line of the sheet of keys.
Item {
    id: root

    required property var modelData
    required property int index
    // Words such as "Arrow Keys" are no keys, and stay as they are.
    readonly property string keys: KeyText.display(modelData.keys) || modelData.keys

    width: parent?.width ?? 0
    height: 30
    Accessible.role: Accessible.ListItem
    Accessible.name: modelData.text + ", " + keys

    Label {
        x: 12
        width: root.width - tail.width - 36
        height: parent.height
        text: root.modelData.text
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    Label {
        id: tail

        anchors.right: parent.right
        anchors.rightMargin: 12
        height: parent.height
        text: root.keys
        font: Theme.callout
        color: Theme.secondaryLabel
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    Divider {
        x: 12
        width: parent.width - 24
        visible: root.index > 0
        Accessible.ignored: true
    }
}
