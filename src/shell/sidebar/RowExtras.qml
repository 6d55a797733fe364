pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What few rows of the sidebar show: the one with the focus or the pointer, and those of brands whose
// changes aren't saved.
Item {
    id: root

    required property bool focused
    required property bool unsaved
    required property bool overHandle
    required property bool bare // nothing marks the row, so that its handle has to be shown
    required property real handleEnd
    required property bool overEnd // behind the name

    FocusRing {
        anchors.margins: 0
        shown: root.focused
        base: Theme.fieldRadius - 3
    }

    Symbol {
        x: 12
        anchors.verticalCenter: parent.verticalCenter
        visible: root.bare
        name: "line.3.horizontal"
        size: 11
        color: Theme.tertiaryLabel
    }

    Symbol {
        anchors.right: parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        visible: root.unsaved
        name: "exclamationmark.triangle.fill"
        size: 11
        color: Theme.warning

        Help {
            text: "Changes aren't saved"
            shown: root.unsaved && root.overEnd
        }
    }

    Item {
        width: root.handleEnd
        height: parent.height

        Help {
            text: "Drag to reorder"
            shown: root.overHandle
        }
    }
}
