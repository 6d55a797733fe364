pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A question before something that can't easily be taken back, or an alert with one button.
//   ConfirmationDialog { title: "Move “Acme” to the Trash?"; message: …; confirmText: "Move to Trash"
//                        destructive: true; onConfirmed: …; onDismissed: … }
// Return confirms, Esc cancels. Exactly one of `confirmed` and `dismissed` follows each opening. An
// empty `cancelText` makes it an alert.
Sheet {
    id: root

    required property string title
    property string message: ""
    property string confirmText: "OK"
    property string cancelText: "Cancel"
    property bool destructive: false

    property bool wasConfirmed: false

    signal confirmed
    signal dismissed

    accessibleName: title
    defaultButton: confirm
    cancelButton: cancelText !== "" ? cancel : confirm
    onAboutToShow: wasConfirmed = false
    onClosed: wasConfirmed ? confirmed() : dismissed()

    Column {
        spacing: 18

        Column {
            width: 320
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

        Row {
            anchors.right: parent.right
            spacing: 8

            Button {
                id: cancel

                visible: text !== ""
                text: root.cancelText
                onClicked: root.close()
            }

            Button {
                id: confirm

                text: root.confirmText
                kind: Button.Prominent
                destructive: root.destructive
                onClicked: {
                    root.wasConfirmed = true;
                    root.close();
                }
            }
        }
    }
}
