pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// Gives the converted picture to another program by a drag.
RoundedRectangle {
    id: root

    required property ExportImageSheet sheet

    implicitWidth: row.width + 20
    implicitHeight: row.height + 12
    radius: 8
    color: Theme.thin(Theme.primary, hover.hovered ? 0.17 : 0.12)
    Accessible.role: Accessible.Graphic
    Accessible.name: "Drag out"
    Accessible.description: help.text

    Row {
        id: row

        x: 10
        y: 6
        spacing: 6

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: "arrow.up.forward.square"
            size: 13
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "Drag out"
            font: Theme.font(12)
        }
    }

    HoverHandler {
        id: hover

        cursorShape: Qt.OpenHandCursor
        onHoveredChanged: if (hovered) root.sheet.prepareDrag()
    }

    DragOutHandler {
        id: drag

        view: root
        radius: root.radius
        onCarried: grabbed => root.sheet.drag(root, grabbed, root.radius)
    }

    Help {
        id: help

        text: "Drag the converted " + root.sheet.formatName + " into another app"
        shown: hover.hovered && !drag.active
    }
}
