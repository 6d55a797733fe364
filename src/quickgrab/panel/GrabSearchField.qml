pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// The panel's search field. Its keys go on to the list where they mean nothing in a text.
FocusScope {
    id: root

    required property QuickGrab grab

    signal accepted

    function take(text: string) {
        field.forceActiveFocus();
        field.insert(field.cursorPosition, text);
        field.textEdited();
    }

    function selectAll() {
        field.selectAll();
    }

    implicitHeight: Math.ceil(field.implicitHeight) + 10

    RoundedRectangle {
        anchors.fill: parent
        radius: 7
        color: Theme.thin(Theme.primary, Theme.dark ? 0.09 : 0.06)
    }

    Symbol {
        id: lens

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 11
        color: Theme.secondaryLabel
    }

    TextField {
        id: field

        anchors.left: lens.right
        anchors.leftMargin: 6
        anchors.right: parent.right
        anchors.rightMargin: clearing.visible ? clearing.width + 14 : 8
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        bordered: false
        placeholderText: "Search assets"
        font: Theme.font(12)
        onTextEdited: root.grab.search = text
        onAccepted: root.accepted()

        Binding on text {
            value: root.grab.search
        }
    }

    Button {
        id: clearing

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: root.grab.search !== ""
        kind: Button.Plain
        symbol: "xmark.circle.fill"
        symbolSize: 12
        tint: hovered ? Theme.secondaryLabel : Theme.tertiaryLabel
        accessibleName: "Clear"
        onClicked: {
            root.grab.search = "";
            field.forceActiveFocus();
        }
    }
}
