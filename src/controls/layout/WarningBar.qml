pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A quiet word, in the flow of its view, on something that isn't as it should be. It opens while
// `message` isn't empty, and takes no room else. Its buttons stand behind the text, or below it where
// there is little room.
//   WarningBar { width: parent.width; message: …; Button { text: "Try Again"; … } }
FocusScope {
    id: root

    required property string message
    property int maximumLineCount: 2
    property int sideMargin: 24
    property int topMargin: 12
    property int bottomMargin: 0
    default property alias actions: buttons.data

    readonly property bool shown: message !== ""
    readonly property bool stacked: width < 480
    property string lastMessage: ""
    property real opening: shown ? 1 : 0

    // Tells that something was tried, which may have changed nothing.
    function blink() {
        blinking.restart();
    }

    // The keyboard goes to where Tab would lead.
    function leave() {
        if (activeFocus)
            buttons.children[buttons.children.length - 1].nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason);
    }

    // `shown` may not have followed yet.
    onMessageChanged: {
        if (message !== "")
            lastMessage = message;
        else
            leave();
    }
    Component.onCompleted: lastMessage = message

    height: Math.round(opening * (topMargin + panel.height + bottomMargin))
    visible: opening > 0
    clip: opening < 1

    Behavior on opening {
        SpringNumber { response: 0.3 }
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message
    Accessible.ignored: !shown

    RoundedRectangle {
        id: panel

        readonly property int padding: 9
        readonly property real contentHeight: root.stacked && buttons.height > 0
                                              ? label.height + 7 + buttons.height
                                              : Math.max(label.height, buttons.height)

        x: root.sideMargin
        y: root.height - root.bottomMargin - height
        width: root.width - 2 * root.sideMargin
        height: contentHeight + 2 * padding
        radius: Theme.controlRadius(ControlSize.Large)
        color: Theme.warningFill
        opacity: root.opening

        Symbol {
            x: 11
            y: label.y + Math.round((firstLine.height - height) / 2)
            name: "exclamationmark.triangle.fill"
            color: Theme.warning
        }

        FontMetrics {
            id: firstLine

            font: label.font
        }

        Label {
            id: label

            x: 35
            y: root.stacked ? panel.padding : Math.round((panel.height - height) / 2)
            width: (root.stacked ? panel.width - 12 : buttons.x - 16) - x
            text: root.lastMessage
            font: Theme.callout
            wrapMode: Text.Wrap
            maximumLineCount: root.maximumLineCount
            Accessible.ignored: true

            Help {
                text: label.truncated ? label.text : ""
            }
        }

        Row {
            id: buttons

            x: root.stacked ? label.x : panel.width - width - panel.padding
            y: root.stacked ? label.y + label.height + 7 : Math.round((panel.height - height) / 2)
            spacing: 6
        }
    }

    NumberAnimation {
        id: blinking

        target: label
        property: "opacity"
        from: 0.25
        to: 1
        duration: Motion.time(450)
    }
}
