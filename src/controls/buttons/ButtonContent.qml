pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A symbol and a text beside each other, centred in what room there is; the text gives way first.
Item {
    id: root

    property string text: ""
    property string symbol: ""
    property real symbolSize: 13
    property font font: Theme.body
    property color color: Theme.label
    property color symbolColor: color
    property int spacing: 6
    property bool leading: false // at the start instead of the centre

    readonly property real gap: text !== "" && symbol !== "" ? spacing : 0

    enabled: false // presses and moves of the pointer needn't look here
    implicitWidth: (symbol !== "" ? mark.implicitWidth : 0) + gap + (text !== "" ? Math.ceil(label.implicitWidth) : 0)
    implicitHeight: Math.max(mark.implicitHeight, text !== "" ? label.implicitHeight : 0)

    LazyItem {
        id: mark

        x: root.leading ? 0 : Math.max(0, Math.round((root.width - root.implicitWidth) / 2))
        anchors.verticalCenter: parent.verticalCenter
        active: root.symbol !== ""
        sourceComponent: Symbol {
            name: root.symbol
            size: root.symbolSize
            weight: root.font.weight
            color: root.symbolColor
        }
    }

    Label {
        id: label

        x: mark.x + (mark.active ? mark.implicitWidth + root.gap : 0)
        width: Math.min(implicitWidth, root.width - x)
        anchors.verticalCenter: parent.verticalCenter
        visible: root.text !== ""
        text: root.text
        font: root.font
        color: root.color
        Accessible.ignored: true
    }
}
