pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What there is to tell of a colour.
Column {
    id: root

    required property ColorFacet swatch

    spacing: 6

    Item {
        width: parent.width
        height: 18

        Label {
            anchors.left: parent.left
            anchors.right: grade.visible ? grade.left : parent.right
            anchors.rightMargin: grade.visible ? 6 : 0
            anchors.verticalCenter: parent.verticalCenter
            text: root.swatch.title
            font: Theme.font(13, Font.DemiBold)
            horizontalAlignment: Text.AlignLeft
        }

        Badge {
            id: grade

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: text !== ""
            text: root.swatch.badge
        }
    }

    Repeater {
        model: root.swatch.lines
        delegate: Label {
            required property string modelData

            width: root.width
            height: 14
            text: modelData
            font: Theme.subheadline
            color: Theme.secondaryLabel
            horizontalAlignment: Text.AlignLeft
        }
    }

    Label {
        width: root.width
        height: 14
        visible: text !== ""
        text: root.swatch.spot
        font: Theme.font(11, Font.Medium)
        color: Theme.accentText
        horizontalAlignment: Text.AlignLeft
    }
}
