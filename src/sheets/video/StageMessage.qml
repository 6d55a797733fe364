pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Stands on the black of a player for the picture that isn't there.
Column {
    id: root

    required property string symbol
    required property string text

    spacing: 8

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.symbol
        size: 28
        color: Qt.rgba(1, 1, 1, 0.75)
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.text
        color: Qt.rgba(1, 1, 1, 0.75)
    }
}
