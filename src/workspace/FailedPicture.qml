pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Stands in a tile for a picture that can't be read.
Item {
    id: root

    required property string help

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
            color: Theme.secondaryLabel
        }

        Label {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Couldn't load"
            font: Theme.font(9, Font.Medium)
            color: Theme.secondaryLabel
            Accessible.ignored: true
        }
    }

    Help {
        text: root.help
    }
}
