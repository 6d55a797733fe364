pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The window's menus. F10 opens the first, the arrows go on from there.
//   MenuBar { Menu { title: "File"; MenuItem { … } } }
T.MenuBar {
    id: root

    property real itemPadding: 9 // at both sides of a title

    signal openingByKey // whoever hides the bar shows it

    function openByKey(index: int) {
        openingByKey();
        (itemAt(index) as T.MenuBarItem).triggered();
    }

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    leftPadding: 8
    rightPadding: 8
    topPadding: 3
    bottomPadding: 3
    delegate: MenuBarItem {}
    Accessible.role: Accessible.MenuBar
    Accessible.name: "Menus"

    Shortcut {
        sequence: "F10"
        enabled: root.count > 0
        onActivated: root.openByKey(0)
    }

    contentItem: Row {
        spacing: root.spacing

        Repeater {
            model: root.contentModel
        }
    }

    background: Rectangle {
        color: Theme.windowBackground

        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }
}
