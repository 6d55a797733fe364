pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

Page {
    id: page

    property bool still: true // popovers stand open, to be looked at

    title: "Panels"

    Specimen {
        title: "Sheet and dialogs (open them to see their dimming)"

        Button { text: "New Brand…"; onClicked: naming.open() }
        Button { text: "Move to Trash…"; onClicked: trashing.open() }
        Button { text: "Alert"; onClicked: alert.open() }
        Button { text: "Alert Window"; onClicked: alertWindow.show() }
        Button {
            id: popoverButton

            text: "Popover"
            onClicked: popover.open()

            Popover {
                id: popover

                accessibleName: "Details"
                Label { text: "A small panel of its own." }
            }
        }

        NamingSheet { id: naming }

        ConfirmationDialog {
            id: trashing

            title: "Move “Acme” to the Trash?"
            message: "The brand file goes to the Trash. You can restore it from there."
            confirmText: "Move to Trash"
            destructive: true
        }

        ConfirmationDialog {
            id: alert

            title: "The library folder can't be used."
            message: "Choose another folder."
            cancelText: ""
        }

        AlertWindow {
            id: alertWindow

            title: "Tarn Loft doesn’t answer"
            heading: "Tarn Loft runs already, but doesn’t answer."
            message: "If you end it, changes of the last moment may be lost."
            confirmText: "End It"
            onConfirmed: busy = true
            onDismissed: close()
        }
    }
    Specimen {
        title: "Toasts, tool tip"
        Item {
            width: 190
            height: 60
            Toast { message: "Copied #4C6FFF"; bottomDistance: 10 }
        }
        Item {
            width: 190
            height: 60
            Toast {
                message: "Copied snippet"
                symbol: "checkmark.circle.fill"
                material: Theme.thickMaterial
                font: Theme.font(12, Font.Medium)
                sidePadding: 12
                verticalPadding: 7
                blur: 6
                drop: 2
                bottomDistance: 14
            }
        }
        Item {
            width: 150
            height: 60
            ToolTip { visible: page.still; y: 14; text: "Click to copy #4C6FFF" }
        }
    }
    Item {
        width: 1090
        height: 200

        StillPanel {
            NamingForm {}
        }
        StillPanel {
            x: 350
            ConfirmationText {
                title: trashing.title
                message: trashing.message
            }
        }
        Button {
            id: anchor

            x: 840
            y: 150
            text: "Shown from here"

            Popover {
                visible: page.still
                closePolicy: T.Popup.NoAutoClose
                focus: false
                accessibleName: "Details"

                Column {
                    spacing: 10
                    Label { text: "Dark mode color"; font: Theme.headline }
                    Row {
                        spacing: 8
                        ColorWell { accessibleName: "Dark mode color"; color: "#8ea4ff" }
                        Label { anchors.verticalCenter: parent.verticalCenter; text: "#8EA4FF"; color: Theme.secondaryLabel }
                    }
                }
            }
        }
    }
}
