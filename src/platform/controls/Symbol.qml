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

    Accessible.ignored: true

    Text {
        anchors.centerIn: parent
        font: SymbolGlyphs.font(Math.round(root.size * 1.25), root.weight)
        text: SymbolGlyphs.text(root.name)
        color: root.color
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
