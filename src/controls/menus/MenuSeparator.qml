pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A line between groups of a menu.
T.MenuSeparator {
    implicitWidth: 40
    implicitHeight: visible ? 11 : 0
    leftPadding: 9
    rightPadding: 9
    topPadding: 5
    bottomPadding: 5

    contentItem: Divider {}
    Accessible.role: Accessible.Separator
    Accessible.name: ""
}
