pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A question before something that can't easily be taken back, or an alert with one button.
//   ConfirmationDialog { title: "Move “Acme” to the Trash?"; message: …; confirmText: "Move to Trash"
//                        destructive: true; onConfirmed: …; onDismissed: … }
// Return confirms, or cancels where `cancelIsDefault`; Esc cancels. Exactly one of `confirmed`,
// `alternativeChosen` and `dismissed` follows each opening. An empty `cancelText` makes it an alert.
Sheet {
    id: root

    required property string title
    property string message: ""
    property string confirmText: "OK"
    property string cancelText: "Cancel"
    property string alternativeText: "" // of a third button, apart from the others
    property bool destructive: false
    property bool cancelIsDefault: false

    readonly property real room: (parent?.width ?? 384) - 2 * (margins + padding) // in a narrow window
    property Button pressed: null // since it was opened

    signal confirmed
    signal alternativeChosen
    signal dismissed

    function begin() {
        if (pressed)
            pressed.focus = false;
        pressed = null;
    }

    // The first button counts, while it closes another can still be clicked.
    function end(button: Button) {
        if (!pressed)
            pressed = button;
        close();
    }

    accessibleName: title
    defaultButton: cancelIsDefault ? cancel : confirm
    cancelButton: cancelText !== "" ? cancel : confirm
    onAboutToShow: begin()
    onClosed: pressed === confirm ? confirmed() : pressed === alternative ? alternativeChosen() : dismissed()

    Column {
        spacing: 18

        Column {
            id: words

            width: Math.min(Math.max(320, buttons.width), root.room)
            spacing: 7

            Label {
                width: parent.width
                text: root.title
                font: Theme.headline
                wrapMode: Text.Wrap
            }

            Label {
                width: parent.width
                visible: text !== ""
                text: root.message
                color: Theme.secondaryLabel
                font: Theme.callout
                wrapMode: Text.Wrap
                lineHeight: 1.15
            }
        }

        Item {
            width: words.width
            height: confirm.height

            Button {
                id: alternative

                visible: text !== ""
                text: root.alternativeText
                onClicked: root.end(this)
            }

            Row {
                id: buttons

                anchors.right: parent.right
                spacing: 8

                Button {
                    id: cancel

                    visible: text !== ""
                    text: root.cancelText
                    kind: root.cancelIsDefault ? Button.Prominent : Button.Bordered
                    onClicked: root.end(this)
                }

                Button {
                    id: confirm

                    text: root.confirmText
                    kind: root.cancelIsDefault ? Button.Bordered : Button.Prominent
                    destructive: root.destructive
                    onClicked: root.end(this)
                }
            }
        }
    }
}
