pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A sheet that asks for one name. A name of blanks can't be confirmed.
Sheet {
    id: root

    required property string title
    required property string prompt
    required property string confirmText
    property alias text: field.text

    signal textEdited(text: string)
    signal confirmed(name: string) // trimmed, never empty

    readonly property string name: text.trim()

    function confirmName() {
        if (name === "")
            return;
        confirmed(name);
        close();
    }

    accessibleName: title
    defaultButton: confirm
    cancelButton: cancel
    onAboutToShow: field.selectAll()

    Column {
        spacing: 14

        Label {
            text: root.title
            font: Theme.headline
        }

        TextField {
            id: field

            width: 280
            focus: true
            placeholderText: root.prompt
            onTextEdited: root.textEdited(text)
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

                text: root.confirmText
                kind: Button.Prominent
                enabled: root.name !== ""
                onClicked: root.confirmName()
            }
        }
    }
}
