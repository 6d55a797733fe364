pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A line of a menu that tells and can't be chosen: a group's title, or a figure.
T.MenuItem {
    id: root

    property bool prominent: true // a title; false for a plain line

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: visible ? 24 : 0
    leftPadding: 9
    rightPadding: 9
    enabled: false
    font: prominent ? Theme.font(11, Font.DemiBold) : Theme.body

    Accessible.role: Accessible.MenuItem
    Accessible.name: text

    contentItem: Label {
        text: root.text
        font: root.font
        color: root.prominent ? Theme.secondaryLabel : Theme.label
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
