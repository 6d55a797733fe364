pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// A section's name, or the title of a group of its entries, with their count.
Item {
    id: root

    required property grabThing thing

    readonly property bool isBlock: thing.kind === GrabKind.BlockHeader

    Label {
        anchors.left: parent.left
        anchors.right: count.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: root.isBlock ? root.thing.name : root.thing.name.toUpperCase()
        font: root.isBlock ? Theme.font(13, Font.DemiBold) : Theme.font(10, Font.Bold)
        color: root.isBlock ? Theme.label : Theme.secondaryLabel
        Accessible.ignored: true
    }

    Label {
        id: count

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.thing.detail
        font: Theme.font(10, Font.Medium)
        color: Theme.secondaryLabel
        Accessible.ignored: true
    }
}
