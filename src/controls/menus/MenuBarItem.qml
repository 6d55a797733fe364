pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The title of one menu of a MenuBar, which makes it.
T.MenuBarItem {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 22
    leftPadding: (menuBar as MenuBar)?.itemPadding ?? 9
    rightPadding: leftPadding
    font: Theme.body
    Accessible.ignored: true // the toolkit calls it a menu bar; its text stands for it

    contentItem: Label {
        text: root.text
        font: root.font
        verticalAlignment: Text.AlignVCenter
        Accessible.role: Accessible.MenuItem
        Accessible.onPressAction: root.triggered()
    }

    background: RoundedRectangle {
        radius: 5
        // The toolkit leaves it highlighted when Esc has closed its menu.
        color: root.down || root.menu?.visible ? Theme.pressedFill : root.hovered ? Theme.hoverFill : "transparent"
    }
}
