pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Stands in a tile for a picture that can't be read. `help` says what to do about it.
Item {
    id: root

    required property string help
    property color color: Theme.secondaryLabel

    Accessible.role: Accessible.StaticText
    Accessible.name: "Couldn't load"
    Accessible.description: help

    Column {
        anchors.centerIn: parent
        spacing: 3

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "exclamationmark.triangle.fill"
            size: 16
            color: root.color
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Couldn't load"
            font: Theme.font(9, Font.Medium)
            color: root.color
            Accessible.ignored: true
        }
    }
}
