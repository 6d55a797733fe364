pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The round mark of a brand or a section.
//   EmblemView { look: row.emblem; thumbnails: window.thumbnails; size: 22 }
// Decoration: what it stands for is named beside it.
Item {
    id: root

    required property emblemLook look
    required property Thumbnails thumbnails
    property real size: 22
    property color fallbackTint: Theme.secondaryLabel

    readonly property bool isSymbol: look.mark === EmblemStyle.Symbol || look.mark === EmblemStyle.Bare
    readonly property bool isText: look.mark === EmblemStyle.Emoji || look.mark === EmblemStyle.Monogram
    readonly property color inkColor: {
        switch (look.ink) {
        case EmblemStyle.Black:
            return "black";
        case EmblemStyle.White:
            return "white";
        case EmblemStyle.Fallback:
            return fallbackTint;
        default:
            return Theme.label;
        }
    }

    implicitWidth: size
    implicitHeight: size
    Accessible.ignored: true

    RoundedRectangle {
        anchors.fill: parent
        visible: root.look.ground !== EmblemStyle.NoGround
        radius: width / 2
        color: root.look.ground === EmblemStyle.Filled ? root.look.color : Theme.thin(Theme.secondaryLabel, 0.2)
    }

    LazyItem {
        anchors.centerIn: parent
        active: root.isSymbol
        sourceComponent: Symbol {
            name: root.look.text
            size: root.size * (root.look.mark === EmblemStyle.Bare ? 0.72 : 0.5)
            weight: root.look.mark === EmblemStyle.Bare ? Font.Normal : Font.DemiBold
            color: root.inkColor
        }
    }

    LazyItem {
        anchors.centerIn: parent
        active: root.isText
        sourceComponent: Text {
            text: root.look.text
            font: root.look.mark === EmblemStyle.Emoji ? Theme.emoji(Math.round(root.size * 0.6))
                                                       : Theme.font(Math.round(root.size * 0.5), Font.DemiBold)
            color: root.inkColor
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }

    LazyItem {
        anchors.fill: parent
        active: root.look.mark === EmblemStyle.Picture
        sourceComponent: EmblemImage {
            path: root.look.text
            thumbnails: root.thumbnails
        }
    }
}
