pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Shell

// What follows the pointer while a brand is dragged: its row, lifted.
Item {
    id: root

    required property Sidebar sidebar
    required property Thumbnails thumbnails

    height: 30
    Accessible.ignored: true

    PanelBackground {
        anchors.fill: parent
        color: Theme.menuBackground
        radius: Theme.fieldRadius
        blur: 10
        drop: 4
    }

    EmblemView {
        x: 6
        anchors.verticalCenter: parent.verticalCenter
        visible: root.sidebar.draggingMarked
        look: root.sidebar.draggingLook
        thumbnails: root.thumbnails
        size: 18
        fallbackTint: root.sidebar.draggingSelected ? Theme.accent : Theme.secondaryLabel
    }

    Label {
        anchors.fill: parent
        leftPadding: 32
        rightPadding: 10
        text: root.sidebar.draggingName
        font: Theme.font(13, root.sidebar.draggingSelected ? Font.DemiBold : Font.Normal)
        color: root.sidebar.draggingSelected ? Theme.accentText : Theme.label
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
