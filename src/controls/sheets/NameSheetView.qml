pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Asks for one name.
Sheet {
    id: root

    required property NameSheet model

    accessibleName: model.title
    defaultButton: confirm
    cancelButton: cancel
    onAboutToShow: field.selectAll()

    Column {
        spacing: 14

        SheetHead {
            width: field.width
            title: root.model.title
        }

        TextField {
            id: field

            width: 300
            focus: true
            placeholderText: root.model.prompt
            text: root.model.text
            onTextEdited: root.model.text = text
        }

        Label {
            width: field.width
            visible: text !== ""
            text: root.model.footnote
            font: Theme.subheadline
            color: Theme.secondaryLabel
            horizontalAlignment: Text.AlignLeft
            wrapMode: Text.Wrap
        }

        Row {
            anchors.right: parent.right
            spacing: 8

            Button {
                id: cancel

                text: "Cancel"
                onClicked: root.close()
            }

            Button {
                id: confirm

                text: root.model.confirmText
                kind: Button.Prominent
                enabled: root.model.confirmable
                onClicked: root.model.confirm()
            }
        }
    }
}
