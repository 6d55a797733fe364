pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A colour with its name.
Row {
    id: root

    required property string name
    required property color color

    width: 168
    spacing: 8

    RoundedRectangle {
        width: 28
        height: 28
        radius: 6
        color: root.color
        edgeWidth: 1
        edgeColor: Theme.hairline
    }

    Label {
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        font: Theme.subheadline
        color: Theme.secondaryLabel
    }
}
