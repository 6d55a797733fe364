pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Tiles"

    Specimen {
        title: "Card: rest, selected, insertion bar, drop target"
        gap: 22
        Card {
            width: 150
            height: 96
            Label { anchors.centerIn: parent; text: "Ag"; font: Theme.font(34) }
        }
        Card {
            width: 150
            height: 96
            selected: true
            Label { anchors.centerIn: parent; text: "Ag"; font: Theme.font(34) }
            SelectionMark { x: 8; y: 8; selected: true }
        }
        Card {
            width: 150
            height: 96
            InsertionBar { shown: true; x: -12; height: parent.height }
            Checkerboard { anchors.fill: parent; anchors.margins: 1; radius: 9 }
            Badge { symbol: "checklist"; kind: Badge.Dark; help: "Has usage notes"; anchors.right: parent.right; anchors.top: parent.top; anchors.margins: 5 }
        }
        Item {
            width: 200
            height: 96
            DropFrame { anchors.fill: parent; shown: true }
            Label { anchors.centerIn: parent; text: "Drop images here"; font: Theme.callout; color: Theme.secondaryLabel }
        }
    }
    Specimen {
        title: "Badges and spinner"
        gap: 12
        Badge { text: "AAA" }
        Badge { text: "AA Large" }
        Badge { text: "4"; symbol: "square.stack.3d.up.fill"; kind: Badge.Dark; font: Theme.font(10, Font.Bold) }
        Badge { text: "3"; kind: Badge.Accent }
        Spinner {}
        Spinner { width: 28; height: 28 }
    }
    Specimen {
        title: "Symbols"
        gap: 12
        Symbol { name: "star.fill"; size: 13 }
        Symbol { name: "paintpalette.fill"; size: 22; color: Theme.accentText }
        Symbol { name: "photo.fill"; size: 22; color: Theme.accentText }
        Symbol { name: "square.grid.3x3.fill"; size: 22; color: Theme.accentText }
        Symbol { name: "books.vertical"; size: 46; color: Theme.tertiaryLabel }
        Symbol { name: "magnifyingglass"; size: 11; color: Theme.secondaryLabel }
        Symbol { name: "checkmark.circle.fill"; size: 13; color: Theme.positive }
        Symbol { name: "exclamationmark.triangle.fill"; size: 16; color: Theme.warning }
        Symbol { name: "pencil"; size: 15 }
        Symbol { name: "pencil"; size: 15; weight: Font.DemiBold }
    }
}
