pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The beginning of a snippet.
Item {
    id: root

    required property CodeFacet code

    Item {
        id: lines

        anchors.fill: parent
        anchors.margins: 8
        clip: true

        FontMetrics {
            id: metrics

            font: Theme.monospaced(9)
        }

        Text {
            width: parent.width
            text: root.code.beginning
            wrapMode: Text.Wrap
            maximumLineCount: Math.max(1, Math.floor(lines.height / metrics.lineSpacing)) // whole ones
            font: metrics.font
            color: Theme.label
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
