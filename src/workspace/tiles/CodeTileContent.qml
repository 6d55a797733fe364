pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The beginning of a snippet, or all of it.
Item {
    id: root

    required property CodeFacet code
    property bool whole: false

    implicitHeight: whole ? text.implicitHeight + 16 : 0

    Item {
        id: lines

        anchors.fill: parent
        anchors.margins: 8
        clip: true

        FontMetrics {
            id: metrics

            font: Theme.monospaced(root.whole ? 11 : 9)
        }

        Text {
            id: text

            width: parent.width
            text: root.whole ? root.code.whole : root.code.beginning
            wrapMode: Text.Wrap
            maximumLineCount: root.whole ? 2147483647 : Math.max(1, Math.floor(lines.height / metrics.lineSpacing)) // whole ones
            font: metrics.font
            color: Theme.label
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
}
