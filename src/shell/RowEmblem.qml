pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The mark in front of a row's name. A brand without one keeps its place, and under the pointer
// shows what it can be dragged by.
Item {
    id: root

    required property bool isBrand
    required property bool marked
    required property bool hovered
    required property bool selected
    required property string name
    required property string packageURL
    required property var emblem
    required property var accent // the brand's own, or undefined

    width: isBrand ? 18 : 16
    height: width
    visible: isBrand || marked

    Lazy {
        anchors.centerIn: parent
        active: root.marked

        EmblemView {
            emblem: root.emblem
            defaultSymbol: root.isBrand ? "square.stack.3d.up" : "rectangle.grid.1x2"
            size: root.width
            packageURL: root.packageURL
            fallbackTint: root.selected ? Theme.accent : Theme.secondaryLabel
            monogramSeed: root.isBrand ? root.name : ""
            monogramColorOverride: root.accent
        }
    }

    Symbol {
        anchors.centerIn: parent
        visible: !root.marked && root.hovered
        name: "line.3.horizontal"
        size: 11
        color: Theme.tertiaryLabel
    }
}
