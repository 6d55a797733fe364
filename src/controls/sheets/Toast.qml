pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The capsule that tells of a finished action at the bottom of its parent while `message` isn't
// empty. The time that it stays is the message's owner's business.
//   Toast { message: toasts.message }
Item {
    id: root

    required property string message
    property string symbol: ""
    property color symbolColor: Theme.positive
    property color material: Theme.thinMaterial
    property color edge: Theme.dark ? Theme.thin("white", 0.12) : Theme.panelBorder
    property font font: Theme.font(13, Font.Medium)
    property int sidePadding: 14
    property int verticalPadding: 9
    property int blur: 12
    property int drop: 4
    property int bottomDistance: 24

    readonly property bool shown: message !== ""
    property string lastMessage: ""

    // `shown` may not have followed yet.
    onMessageChanged: if (message !== "") lastMessage = message
    Component.onCompleted: lastMessage = message

    anchors.horizontalCenter: parent?.horizontalCenter
    anchors.bottom: parent?.bottom
    anchors.bottomMargin: bottomDistance - (1 - opacity) * 16
    implicitWidth: Math.min(content.implicitWidth + 2 * sidePadding, (parent?.width ?? 400) - 32)
    implicitHeight: content.implicitHeight + 2 * verticalPadding
    opacity: shown ? 1 : 0
    visible: opacity > 0

    Behavior on opacity {
        SpringNumber { response: 0.25 }
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message
    Accessible.ignored: !shown

    PanelBackground {
        anchors.fill: parent
        radius: Math.floor(root.height / 2)
        color: root.material
        edge: root.edge
        blur: root.blur
        drop: root.drop
    }

    ButtonContent {
        id: content

        anchors.fill: parent
        anchors.leftMargin: root.sidePadding
        anchors.rightMargin: root.sidePadding
        text: root.lastMessage
        symbol: root.symbol
        symbolColor: root.symbolColor
        font: root.font
    }
}
