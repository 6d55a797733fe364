pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A system symbol by its name, drawn as large as text of `size` would want it beside itself.
//   Symbol { name: "plus"; size: 13; color: Theme.accentText }
// Decoration: what it stands for is named by the control that holds it.
Item {
    id: root

    required property string name
    property real size: 13
    property int weight: Font.Normal
    property color color: Theme.label

    implicitWidth: Math.round(size * 1.25)
    implicitHeight: implicitWidth
    enabled: false // presses and moves of the pointer needn't look here

    Text {
        readonly property int em: Math.round(root.size * 1.25)

        // The middle of the font's square is three eighths of it above the baseline; centring the
        // line instead would be half a pixel off at some sizes.
        x: Math.round((root.width - em) / 2)
        y: Math.round(root.height / 2 + em * 0.375) - baselineOffset
        font: SymbolGlyphs.font(em, root.weight)
        text: SymbolGlyphs.text(root.name)
        color: root.color
        textFormat: Text.PlainText
    }
}
