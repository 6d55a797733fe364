pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// One thing that the program is good for, on the first-run screen.
Column {
    id: root

    required property string symbol
    required property string title
    required property string subtitle

    width: 130
    spacing: 8

    Item {
        width: parent.width
        height: 26

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: 22
            color: Theme.accent
        }
    }

    Label {
        width: parent.width
        text: root.title
        font: Theme.font(13, Font.DemiBold)
        horizontalAlignment: Text.AlignHCenter
    }

    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        width: implicitWidth > root.width ? Math.ceil(implicitWidth * 0.6) : implicitWidth // two lines of one length
        text: root.subtitle
        font: Theme.subheadline
        color: Theme.secondaryLabel
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
