pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// One hit: what it is, what it is called and where it stands.
T.ItemDelegate {
    id: root

    required property int index
    required property string title
    required property string detail
    required property string symbol
    property bool current: false

    implicitHeight: 44
    padding: 0
    focusPolicy: Qt.NoFocus // the list has it

    Accessible.role: Accessible.ListItem
    Accessible.name: title + ", " + detail
    Accessible.selectable: true
    Accessible.selected: current
    Accessible.onPressAction: clicked()

    background: RoundedRectangle {
        radius: Theme.fieldRadius
        color: root.down ? Theme.pressedFill : root.current ? Theme.selectedFill : root.hovered ? Theme.hoverFill : "transparent"
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10

        Symbol {
            id: mark

            anchors.verticalCenter: parent.verticalCenter
            width: 20
            name: root.symbol
            size: 15
            color: Theme.secondaryLabel
        }

        Column {
            anchors.left: mark.right
            anchors.leftMargin: 10
            anchors.right: arrow.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Label {
                width: parent.width
                text: root.title
                font: Theme.font(13, Font.Medium)
                horizontalAlignment: Text.AlignLeft
                Accessible.ignored: true
            }

            Label {
                width: parent.width
                text: root.detail
                font: Theme.subheadline
                color: Theme.secondaryLabel
                horizontalAlignment: Text.AlignLeft
                Accessible.ignored: true
            }
        }

        Symbol {
            id: arrow

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "arrow.turn.down.right"
            size: 12
            color: Theme.tertiaryLabel
        }
    }
}
