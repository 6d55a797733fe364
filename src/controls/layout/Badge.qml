pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A small capsule with a short text or symbol: a grade, a count. `Dark` is for pictures.
//   Badge { text: "AAA" }    Badge { symbol: "checklist"; kind: Badge.Dark; help: "Has usage notes" }
RoundedRectangle {
    id: root

    enum Kind {
        Quiet,
        Accent,
        Dark
    }

    property string text: ""
    property string symbol: ""
    property string help: ""
    property int kind: Badge.Quiet
    property font font: Theme.font(9, Font.Bold)

    implicitWidth: Math.max(content.implicitWidth + (text === "" ? 8 : 10), implicitHeight)
    implicitHeight: content.implicitHeight + (text === "" ? 8 : 3)
    radius: height / 2
    color: kind === Badge.Dark ? Qt.rgba(0, 0, 0, 0.45) : kind === Badge.Accent ? Theme.accentFill : Theme.thin(Theme.secondaryLabel, 0.2)

    Accessible.role: Accessible.StaticText
    Accessible.name: text || help

    ButtonContent {
        id: content

        anchors.centerIn: parent
        width: implicitWidth
        height: implicitHeight
        text: root.text
        symbol: root.symbol
        symbolSize: root.font.pixelSize
        spacing: 3
        font: root.font
        color: root.kind === Badge.Dark ? "white" : root.kind === Badge.Accent ? Theme.onAccent : Theme.secondaryLabel
    }

    Help {
        text: root.help
    }
}
