pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A button that opens a menu beneath itself, made when it is first opened; Down opens it too.
//   MenuButton { symbol: "ellipsis.circle"; help: "Section options"; kind: Button.Borderless; menu: Menu { … } }
MenuOpener {
    id: root

    required property Component menu // of a Menu
    property alias text: face.text
    property alias symbol: face.symbol
    property alias symbolSize: face.symbolSize
    property alias kind: face.kind
    property alias tint: face.tint
    property alias font: face.font
    property bool chevron: text !== ""
    property bool atEnd: false // the menu ends where the button does, instead of beginning there

    property Menu made: null

    function openMenu() {
        if (open) {
            made.close();
            return;
        }
        // A press on the button doesn't close the menu by itself: the click that follows does.
        if (!made)
            made = menu.createObject(root, {
                closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
            }) as Menu;
        made.popup(root, atEnd ? width - made.implicitWidth : 0, height + 4);
    }

    role: Accessible.ButtonMenu
    open: made?.opened ?? false
    accessibleName: text || help
    implicitWidth: face.implicitWidth
    implicitHeight: face.implicitHeight
    onMenuRequested: openMenu()

    Button {
        id: face

        anchors.fill: parent
        controlSize: root.controlSize
        help: root.help
        focusPolicy: Qt.NoFocus
        down: pressed || root.open
        rightPadding: root.chevron ? (kind === Button.Plain ? 15 : 24) : leftPadding
        onClicked: root.openMenu()
        Accessible.ignored: true

        Symbol {
            anchors.right: parent.right
            anchors.rightMargin: face.kind === Button.Plain ? 0 : 7
            anchors.verticalCenter: parent.verticalCenter
            visible: root.chevron
            name: "chevron.down"
            size: 9
            weight: Font.DemiBold
            color: face.filled ? face.tint : Theme.secondaryLabel
        }
    }
}
