pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The window's menus. F10 opens the first, the arrows go on from there.
//   MenuBar { Menu { title: "File"; MenuItem { … } } }
T.MenuBar {
    id: root

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
        enabled: root.visible && root.count > 0
        onActivated: (root.itemAt(0) as T.MenuBarItem).triggered()
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
