pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The head of a sheet: what stands for it, its title, perhaps a second line, and what is at the end.
//   SheetHead {
//       front: Symbol { name: "checklist" }
//       title: "Usage & Notes"
//       Button { text: "Done" }
//   }
Item {
    id: root

    property string title: ""
    property string subtitle: ""
    property alias front: front.data
    property alias field: texts.data // in the title's place
    default property alias end: end.data

    height: Math.max(front.height, texts.height, end.height)

    Row {
        id: front

        anchors.verticalCenter: parent.verticalCenter
    }

    Column {
        id: texts

        anchors.left: front.right
        anchors.leftMargin: front.width > 0 ? 12 : 0
        anchors.right: end.left
        anchors.rightMargin: end.width > 0 ? 12 : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        Label {
            width: parent.width
            visible: text !== ""
            text: root.title
            font: Theme.headline
            elide: Text.ElideMiddle
            horizontalAlignment: Text.AlignLeft
            Accessible.role: Accessible.Heading
        }

        Label {
            width: parent.width
            visible: text !== ""
            text: root.subtitle
            font: Theme.subheadline
            color: Theme.secondaryLabel
            elide: Text.ElideMiddle
            horizontalAlignment: Text.AlignLeft
        }
    }

    Row {
        id: end

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
    }
}
