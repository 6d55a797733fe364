pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The round mark of a brand or a section; nothing while it isn't `active`.
//   EmblemView { look: row.emblem; thumbnails: window.thumbnails; size: 22 }
// Decoration: what it stands for is named beside it.
LazyItem {
    id: root

    required property emblemLook look
    required property Thumbnails thumbnails
    property real size: 22
    property color fallbackTint: Theme.secondaryLabel

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

    width: size
    height: size
    sourceComponent: {
        switch (look.mark) {
        case EmblemStyle.Symbol:
        case EmblemStyle.Bare:
            return symbol;
        case EmblemStyle.Emoji:
        case EmblemStyle.Monogram:
            return text;
        case EmblemStyle.Picture:
            return picture;
        default:
            return null;
        }
    }

    RoundedRectangle {
        width: root.width
        height: root.height
        visible: root.active && root.look.ground !== EmblemStyle.NoGround
        radius: width / 2
        color: root.look.ground === EmblemStyle.Filled ? root.look.color : Theme.thin(Theme.secondaryLabel, 0.2)
    }

    Component {
        id: symbol

        Symbol {
            name: root.look.text
            size: root.size * (root.look.mark === EmblemStyle.Bare ? 0.72 : 0.5)
            weight: root.look.mark === EmblemStyle.Bare ? Font.Normal : Font.DemiBold
            color: root.inkColor
        }
    }

    Component {
        id: text

        Text {
            text: root.look.text
            font: root.look.mark === EmblemStyle.Emoji ? Theme.emoji(Math.round(root.size * 0.6))
                                                       : Theme.font(Math.round(root.size * 0.5), Font.DemiBold)
            color: root.inkColor
            textFormat: Text.PlainText
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }

    Component {
        id: picture

        ThumbnailView {
            path: root.look.text
            thumbnails: root.thumbnails
            fillMode: ThumbnailView.Fill
            radius: width / 2
            maxPixel: 128
        }
    }
}
