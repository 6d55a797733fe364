pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A sample of a typeface over its family's name.
Item {
    id: root

    required property Tile tile

    Column {
        anchors.centerIn: parent
        width: parent.width - 12
        spacing: 2

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Ag"
            font.family: root.tile.fontFamily
            font.pixelSize: 34
            color: Theme.label
            textFormat: Text.PlainText
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.tile.fontFamily
            font: Theme.font(9)
            color: Theme.secondaryLabel
            Accessible.ignored: true
        }
    }
}
