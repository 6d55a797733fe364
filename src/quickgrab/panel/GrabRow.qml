pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.QuickGrab

// A font, a gradient or a snippet in a row of its own; a click copies it.
Item {
    id: root

    required property grabThing thing
    required property bool hovered
    required property bool pressed
    required property bool marked

    readonly property bool isFont: thing.kind === GrabKind.Font
    readonly property bool isGradient: thing.kind === GrabKind.Gradient
    readonly property bool isCode: thing.kind === GrabKind.Code

    RoundedRectangle {
        anchors.fill: parent
        anchors.margins: -3
        anchors.leftMargin: -6
        anchors.rightMargin: -6
        radius: 6
        color: root.pressed ? Theme.pressedFill : root.hovered ? Theme.hoverFill : "transparent"

        FocusRing {
            anchors.margins: 0
            shown: root.marked
            base: 4
        }
    }

    LazyItem {
        id: sample

        readonly property int room: root.isFont ? 34 : root.isGradient ? 48 : 24

        width: room
        height: parent.height
        sourceComponent: root.isFont ? root.face : root.isGradient ? root.gradient : root.code
    }

    Column {
        x: sample.room + 8
        width: copies.x - x - 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            text: root.thing.name
            font: Theme.font(12, root.isGradient ? Font.Normal : Font.Medium)
            Accessible.ignored: true
        }

        Label {
            width: parent.width
            visible: root.thing.detail !== ""
            text: root.thing.detail
            font: root.isCode ? Theme.monospaced(10) : Theme.font(10)
            color: Theme.secondaryLabel
            Accessible.ignored: true
        }
    }

    Symbol {
        id: copies

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: "doc.on.doc"
        size: 10
        color: root.hovered || root.marked ? Theme.label : Theme.secondaryLabel
    }

    readonly property Component face: Component {
        Text {
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            text: "Ag"
            font.family: root.thing.source
            font.pixelSize: 22
            color: Theme.label
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }

    readonly property Component gradient: Component {
        Item {
            GradientView {
                anchors.fill: parent
                gradient: root.thing.gradient
                radius: 6
            }

            RoundedRectangle {
                anchors.fill: parent
                radius: 6
                color: "transparent"
                edgeWidth: 0.5
                edgeColor: Theme.thin(Theme.primary, 0.1)
            }
        }
    }

    readonly property Component code: Component {
        Item {
            Symbol {
                anchors.centerIn: parent
                name: "chevron.left.forwardslash.chevron.right"
                size: 12
                color: Theme.secondaryLabel
            }
        }
    }
}
