pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What stands where there is nothing yet: a symbol, a title, a line, and perhaps a button.
//   EmptyState { symbol: "tray"; title: "No matches"; message: "Try a different search." }
Column {
    id: root

    property string symbol: ""
    property real symbolSize: 30
    property color symbolColor: Theme.tertiaryLabel
    property font titleFont: Theme.font(13, Font.DemiBold)
    property font messageFont: Theme.subheadline
    required property string title
    property string message: ""
    default property alias actions: below.data

    width: 320
    spacing: 8

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.symbol !== ""
        name: root.symbol
        size: root.symbolSize
        color: root.symbolColor
    }

    Label {
        width: parent.width
        text: root.title
        font: root.titleFont
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        maximumLineCount: 3 // of what was searched for
        elide: Text.ElideRight
    }

    Label {
        width: parent.width
        visible: text !== ""
        text: root.message
        font: root.messageFont
        color: Theme.secondaryLabel
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        lineHeight: 1.2
    }

    Column {
        id: below

        anchors.horizontalCenter: parent.horizontalCenter
        topPadding: 8
        spacing: 8
        visible: children.length > 0
    }
}
