pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What a ConfirmationDialog shows, without its window.
Column {
    id: root

    required property string title
    required property string message

    spacing: 18

    Column {
        width: 320
        spacing: 7
        Label { width: parent.width; text: root.title; font: Theme.headline; wrapMode: Text.Wrap }
        Label { width: parent.width; text: root.message; font: Theme.callout; color: Theme.secondaryLabel; wrapMode: Text.Wrap; lineHeight: 1.15 }
    }

    Row {
        anchors.right: parent.right
        spacing: 8
        Button { text: "Cancel" }
        Button { text: "Move to Trash"; kind: Button.Prominent; destructive: true }
    }
}
