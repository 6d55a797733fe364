pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Gives the item that it stands in a context menu, made at the first right click, press of the Menu
// key or Shift+F10 while the item has the focus.
//   Tile { ContextMenuArea { menu: Menu { … } } }
// `requested` comes just before the menu opens, so that the view can select what was clicked.
Item {
    id: root

    required property Component menu // of a Menu
    property bool keyboardOnly: false // the view opens it by pointer itself

    property Menu opened: null // made at its first opening

    signal requested

    function openMenu(x: real, y: real) {
        requested();
        if (!opened)
            opened = menu.createObject(root) as Menu;
        opened.popup(root, x, y);
    }

    anchors.fill: parent

    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.RightButton
        enabled: !root.keyboardOnly
        onPressed: mouse => root.openMenu(mouse.x, mouse.y)
    }

    Shortcut {
        enabled: root.parent?.activeFocus ?? false
        sequences: ["Menu", "Shift+F10"]
        onActivated: root.openMenu(root.width / 2, root.height / 2)
    }
}
