pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A line of one pixel between things, as long as its layout makes it.
Rectangle {
    property bool vertical: false

    implicitWidth: vertical ? 1 : 20
    implicitHeight: vertical ? 20 : 1
    color: Theme.separator
    Accessible.role: Accessible.Separator
    Accessible.name: ""
}
