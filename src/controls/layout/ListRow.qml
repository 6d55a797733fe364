pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A row of a list that can be chosen by a click, Space or Return.
//   ListRow { text: brand.name; selected: …; onClicked: … }
// A row with other content sets `contentItem` and still gives its `text`, which names it.
T.ItemDelegate {
    id: root

    property bool selected: false
    property bool hoverable: true
    property string symbol: ""

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(28, implicitContentHeight + topPadding + bottomPadding)
    padding: 4
    leftPadding: 8
    rightPadding: 8
    font: Theme.body
    focusPolicy: Qt.TabFocus

    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: clicked()

    contentItem: ButtonContent {
        leading: true
        text: root.text
        symbol: root.symbol
        font: root.font
        spacing: 8
    }

    background: RoundedRectangle {
        radius: Theme.fieldRadius
        color: root.selected ? Theme.selectedFill : root.down ? Theme.pressedFill
               : root.hoverable && root.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: root.visualFocus
            base: Theme.fieldRadius - 2
        }
    }
}
