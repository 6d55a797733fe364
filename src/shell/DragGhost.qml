pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What follows the pointer while a brand is dragged.
Item {
    id: root

    required property string text

    height: 28
    Accessible.ignored: true

    PanelBackground {
        anchors.fill: parent
        color: Theme.menuBackground
        radius: Theme.fieldRadius
        blur: 10
        drop: 4
    }

    Label {
        anchors.fill: parent
        leftPadding: 34
        rightPadding: 10
        text: root.text
        font: Theme.font(13, Font.DemiBold)
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
