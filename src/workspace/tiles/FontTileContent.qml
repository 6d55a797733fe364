pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A sample of a typeface over its family's name.
Item {
    id: root

    required property FontFacet face

    Column {
        anchors.centerIn: parent
        width: parent.width - 12
        spacing: 2

        Text {
            anchors.horizontalCenter: parent.horizontalCenter
            text: "Ag"
            font.family: root.face.family
            font.pixelSize: 34
            color: Theme.label
            textFormat: Text.PlainText
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: root.face.family
            font: Theme.font(9)
            color: Theme.secondaryLabel
            Accessible.ignored: true
        }
    }
}
