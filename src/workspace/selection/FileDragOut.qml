pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The pill that all files of the selection are dragged out by.
RoundedRectangle {
    id: root

    required property SelectionActions selected

    implicitWidth: 96
    implicitHeight: 26
    radius: 12
    color: Theme.thin(Theme.label, hovering.hovered ? 0.14 : 0.08)

    Accessible.role: Accessible.StaticText
    Accessible.name: "Drag out"
    Accessible.description: help.text

    Row {
        anchors.centerIn: parent
        spacing: 5

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "square.and.arrow.up"
            size: 12
            color: Theme.label
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "Drag out"
            font: Theme.font(12)
            Accessible.ignored: true
        }
    }

    HoverHandler {
        id: hovering

        cursorShape: Qt.OpenHandCursor
    }

    DragOutHandler {
        view: root
        radius: root.radius
        onCarried: grabbed => root.selected.drag(root, grabbed, root.radius)
    }

    Help {
        id: help

        text: "Drag " + root.selected.exportableCount + " file" + (root.selected.exportableCount === 1 ? "" : "s") + " into another app"
        shown: hovering.hovered
    }
}
