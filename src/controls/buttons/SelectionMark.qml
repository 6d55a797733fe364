pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The round check box at the corner of something that can be selected.
//   SelectionMark { selected: …; onClicked: … }
T.CheckBox {
    id: root

    property bool selected: false

    checked: selected
    nextCheckState: () => selected ? Qt.Checked : Qt.Unchecked // the view's business
    padding: 0
    implicitWidth: 20
    implicitHeight: 20
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.CheckBox
    Accessible.name: selected ? "Deselect" : "Select"
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onPressAction: clicked()

    background: RoundedRectangle {
        radius: width / 2
        color: root.selected ? Theme.accentFill : Qt.rgba(0, 0, 0, root.hovered ? 0.45 : 0.3)
        edgeWidth: 1.5
        edgeColor: "white"

        FocusRing {
            shown: root.visualFocus
            base: root.width / 2
        }
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            visible: root.selected
            name: "checkmark"
            size: 10
            weight: Font.Bold
            color: Theme.onAccent
        }
    }
}
