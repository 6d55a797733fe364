pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A button that opens a menu beneath itself; Down opens it too.
//   MenuButton { symbol: "ellipsis.circle"; help: "Section options"; kind: Button.Borderless; menu: Menu { … } }
Button {
    id: root

    required property Menu menu
    property bool chevron: text !== ""

    down: pressed || menu.visible
    rightPadding: chevron ? (kind === Button.Plain ? 15 : 24) : leftPadding
    Keys.onDownPressed: openMenu()
    onClicked: openMenu()

    function openMenu() {
        if (menu.visible) {
            menu.close();
            return;
        }
        menu.popup(root, 0, height + 4);
    }

    Symbol {
        anchors.right: parent.right
        anchors.rightMargin: root.kind === Button.Plain ? 0 : 7
        anchors.verticalCenter: parent.verticalCenter
        visible: root.chevron
        name: "chevron.down"
        size: 9
        weight: Font.DemiBold
        color: root.filled ? root.tint : Theme.secondaryLabel
    }
}
