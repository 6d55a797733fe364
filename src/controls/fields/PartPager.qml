pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Goes through the parts of a long text.
Row {
    id: root

    required property LongText parts

    height: 28
    spacing: 2

    Button {
        symbol: "chevron.left"
        help: "Previous part"
        kind: Button.Borderless
        enabled: root.parts.place > 0
        onClicked: --root.parts.place
    }

    Label {
        height: parent.height
        text: "Part " + (root.parts.place + 1) + " of " + root.parts.count
        font: Theme.subheadline
        color: Theme.secondaryLabel
        verticalAlignment: Text.AlignVCenter
    }

    Button {
        symbol: "chevron.right"
        help: "Next part"
        kind: Button.Borderless
        enabled: root.parts.place < root.parts.count - 1
        onClicked: ++root.parts.place
    }
}
