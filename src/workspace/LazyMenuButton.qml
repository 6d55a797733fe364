pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A button that opens a menu beneath itself, which is made when it is first opened.
Button {
    id: root

    required property Component menu

    property Menu opened: null

    function openMenu() {
        if (!opened)
            opened = menu.createObject(root) as Menu;
        opened.popup(root, root.width - opened.implicitWidth, height + 4);
    }

    kind: Button.Borderless
    symbolSize: 15
    tint: Theme.secondaryLabel
    down: pressed || (opened?.visible ?? false)
    Keys.onDownPressed: openMenu()
    onClicked: openMenu()
}
