pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A question in a window of its own, where there is none that a ConfirmationDialog could stand in.
//   AlertWindow { title: …; heading: …; message: …; confirmText: "End It"; onConfirmed: … }
// Return and Esc cancel, and so does closing the window. It stays until it is closed.
Window {
    id: root

    required property string heading
    property string message: ""
    property string confirmText: "OK" // none: there is nothing to confirm
    property string cancelText: "Cancel"
    property bool busy: false // with what was confirmed

    signal confirmed
    signal dismissed

    readonly property size fitting: Qt.size(content.implicitWidth + 2 * content.x, content.implicitHeight + 2 * content.y)

    flags: Qt.Dialog | Qt.CustomizeWindowHint | Qt.WindowTitleHint | Qt.WindowCloseButtonHint
    color: Theme.sheetBackground
    width: fitting.width
    height: fitting.height
    minimumWidth: fitting.width
    maximumWidth: fitting.width
    minimumHeight: fitting.height
    maximumHeight: fitting.height
    x: Screen.virtualX + Math.round((Screen.width - width) / 2)
    y: Screen.virtualY + Math.round((Screen.height - height) * 0.4)
    onClosing: dismissed()
    onBusyChanged: cancel.forceActiveFocus() // the other one may go

    FocusScope {
        id: content

        x: 24
        y: 22
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight + 20 + buttons.implicitHeight
        width: implicitWidth
        height: implicitHeight
        focus: true

        Accessible.role: Accessible.Dialog
        Accessible.name: root.heading
        Accessible.description: root.message

        Keys.onEscapePressed: cancel.press()

        Row {
            id: row

            spacing: 16

            Symbol {
                name: "exclamationmark.triangle.fill"
                size: 28
                color: Theme.warning
            }

            Column {
                width: 330
                spacing: 6

                Label {
                    width: parent.width
                    text: root.heading
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
        }

        Row {
            id: buttons

            anchors.right: parent.right
            anchors.bottom: parent.bottom
            spacing: 8

            Spinner {
                anchors.verticalCenter: parent.verticalCenter
                running: root.busy
            }

            Button {
                visible: text !== ""
                enabled: !root.busy
                text: root.confirmText
                destructive: true
                onClicked: root.confirmed()
            }

            Button {
                id: cancel

                focus: true
                text: root.cancelText
                kind: Button.Prominent
                onClicked: root.dismissed()
            }
        }
    }
}
