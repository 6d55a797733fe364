pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Sheets

// A symbol, and what it stands on.
FocusScope {
    id: root

    required property EmblemPicker picker

    height: ground.y + ground.height

    SymbolGrid {
        id: symbols

        width: parent.width
        focus: true
        picker: root.picker
    }

    EmblemGround {
        id: ground

        y: symbols.height + 12
        width: parent.width
        picker: root.picker
    }
}
