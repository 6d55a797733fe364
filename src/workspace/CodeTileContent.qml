pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The beginning of a snippet.
Item {
    id: root

    required property Tile tile

    Item {
        anchors.fill: parent
        anchors.margins: 8
        clip: true

        Text {
            width: parent.width
            text: root.tile.snippet
            wrapMode: Text.Wrap
            font: Theme.monospaced(9)
            color: Theme.label
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
