pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What stands in a menu's entry: symbol and text at the start, the keys at the end.
Item {
    id: root

    required property string text
    required property string symbol
    required property string keys
    required property color color
    required property color keysColor
    required property real spacing

    implicitWidth: content.implicitWidth + (keys !== "" ? spacing + tail.implicitWidth : 0)
    implicitHeight: content.implicitHeight

    ButtonContent {
        id: content

        width: root.width - (root.keys !== "" ? tail.implicitWidth : 0)
        height: root.height
        leading: true
        text: root.text
        symbol: root.symbol
        color: root.color
    }

    LazyItem {
        id: tail

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        active: root.keys !== ""
        sourceComponent: Label {
            text: root.keys
            font: Theme.callout
            color: root.keysColor
            Accessible.ignored: true
        }
    }
}
