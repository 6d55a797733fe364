pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A sheet with one field.
Column {
    id: root

    property alias createButton: create
    property alias cancelButton: cancel

    signal finished

    spacing: 14

    Label {
        text: "New Brand"
        font: Theme.headline
    }

    TextField {
        id: name

        width: 280
        focus: true
        placeholderText: "Brand name"
    }

    Row {
        anchors.right: parent.right
        spacing: 8

        Button {
            id: cancel

            text: "Cancel"
            onClicked: root.finished()
        }

        Button {
            id: create

            text: "Create"
            kind: Button.Prominent
            enabled: name.text.trim() !== ""
            onClicked: root.finished()
        }
    }
}
