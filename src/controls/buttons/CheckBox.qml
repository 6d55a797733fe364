pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A choice to be made or left, with its text behind it.
//   CheckBox { text: "Colors"; checked: …; onToggled: … }
T.CheckBox {
    id: root

    property string accessibleName: text

    function turn() {
        toggle();
        toggled();
    }

    implicitWidth: 16 + (text !== "" ? spacing + implicitContentWidth : 0)
    implicitHeight: Math.max(20, implicitContentHeight)
    padding: 0
    leftPadding: text !== "" ? 16 + spacing : 0
    spacing: 7
    font: Theme.body
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : 0.4

    Keys.onReturnPressed: turn()
    Keys.onEnterPressed: turn()
    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: turn()
    Accessible.onToggleAction: turn()

    indicator: RoundedRectangle {
        y: Math.round((root.height - height) / 2)
        implicitWidth: 16
        implicitHeight: 16
        radius: 4
        color: root.checked ? (root.down ? Theme.accentFillPressed : Theme.accentFill) : root.down ? Theme.controlFillPressed : Theme.controlFill
        edgeWidth: root.checked ? 0 : 1
        edgeColor: Theme.checkEdge

        Symbol {
            anchors.centerIn: parent
            visible: root.checked
            name: "checkmark"
            size: 10
            weight: Font.Bold
            color: Theme.onAccent
        }

        FocusRing {
            shown: root.visualFocus
            base: 4
            gap: 1
        }
    }

    contentItem: Label {
        text: root.text
        font: root.font
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
