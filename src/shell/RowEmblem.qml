pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The mark in front of a row's name. A brand without one keeps its place, and under the pointer
// shows what it can be dragged by.
Item {
    id: root

    required property bool isBrand
    required property bool marked
    required property bool hovered
    required property bool selected
    required property emblemLook look
    required property Thumbnails thumbnails

    width: isBrand ? 18 : 16
    height: width
    visible: isBrand || marked

    LazyItem {
        anchors.centerIn: parent
        active: root.marked
        sourceComponent: EmblemView {
            look: root.look
            thumbnails: root.thumbnails
            size: root.width
            fallbackTint: root.selected ? Theme.accent : Theme.secondaryLabel
        }
    }

    LazyItem {
        anchors.centerIn: parent
        active: !root.marked && root.hovered
        sourceComponent: Symbol {
            name: "line.3.horizontal"
            size: 11
            color: Theme.tertiaryLabel
        }
    }
}
