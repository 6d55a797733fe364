pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A field for a search text, with a button that clears it. Esc clears it first, then emits `leaving` and
// goes on to the view. `searching` holds while it has a text or the focus: show a ScopeBar beneath by it.
//   SearchField { placeholderText: "Search Acme"; onTextEdited: … }
FocusScope {
    id: root

    property alias text: field.text
    property alias placeholderText: field.placeholderText
    property alias accessibleName: field.accessibleName
    property alias font: field.font
    readonly property bool searching: text !== "" || activeFocus

    signal textEdited
    signal accepted
    signal leaving

    function selectAll() {
        field.selectAll();
    }

    function clear() {
        field.clear();
        textEdited();
    }

    implicitWidth: 220
    implicitHeight: 28

    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape // not the window's
    Keys.onEscapePressed: event => {
        event.accepted = text !== "";
        if (event.accepted)
            clear();
        else
            leaving();
    }

    RoundedRectangle {
        anchors.fill: parent
        radius: 7
        color: Theme.thin(Theme.primary, Theme.dark ? 0.09 : 0.06)

        FocusRing {
            shown: field.activeFocus
            base: 7
        }
    }

    Symbol {
        id: lens

        x: 7
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        size: 12
        color: Theme.secondaryLabel
    }

    TextField {
        id: field

        anchors.fill: parent
        anchors.leftMargin: lens.x + lens.width + 5
        anchors.rightMargin: clearing.active ? clearing.width + 8 : 8
        focus: true
        bordered: false
        font: Theme.font(13)
        onTextEdited: root.textEdited()
        onAccepted: root.accepted()
    }

    LazyItem {
        id: clearing

        anchors.right: parent.right
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        active: field.text !== ""
        sourceComponent: Button {
            kind: Button.Plain
            symbol: "xmark.circle.fill"
            symbolSize: 12
            tint: hovered ? Theme.secondaryLabel : Theme.tertiaryLabel
            accessibleName: "Clear"
            onClicked: root.clear()
        }
    }
}
