pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A gradient's stops, its angle, and its CSS to copy.
Column {
    id: root

    required property GradientFacet facet

    Repeater {
        model: root.facet.stopHexes
        delegate: Item {
            id: stop

            required property string modelData
            required property int index

            width: root.width
            height: 18

            RoundedRectangle {
                id: sample

                anchors.verticalCenter: parent.verticalCenter
                width: 12
                height: 12
                radius: 3
                color: root.facet.stopColors[stop.index] ?? "transparent"
                edgeWidth: 1
                edgeColor: Theme.thin(Theme.primary, 0.1)
            }

            Label {
                anchors.left: sample.right
                anchors.leftMargin: 6
                anchors.right: place.left
                anchors.rightMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                text: stop.modelData
                font: Theme.monospaced(11)
                color: Theme.secondaryLabel
                horizontalAlignment: Text.AlignLeft
            }

            Label {
                id: place

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: root.facet.stopPlaces[stop.index] ?? ""
                font: Theme.monospaced(11)
                color: Theme.secondaryLabel
            }
        }
    }

    Item {
        width: root.width
        height: 20

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: root.facet.angle
            font: Theme.subheadline
            color: Theme.secondaryLabel
        }

        Button {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: "Copy CSS"
            kind: Button.Plain
            font: Theme.font(11, Font.Medium)
            tint: Theme.accentText
            enabled: root.facet.hasCss
            focusPolicy: Qt.NoFocus // the menu has it for the keyboard
            onClicked: root.facet.copyCss()
        }
    }
}
