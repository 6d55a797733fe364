pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// On or off, at once. With a `text` it stands before it.
//   Switch { accessibleName: "Show Dock icon"; checked: …; onToggled: … }
// Space and Return turn it. `toggled` tells of the user's changes alone.
T.Switch {
    id: root

    property string accessibleName: text

    function turn() {
        toggle();
        toggled();
    }

    implicitWidth: text !== "" ? implicitContentWidth : indicator.implicitWidth
    implicitHeight: Math.max(22, implicitContentHeight)
    padding: 0
    spacing: 8
    font: Theme.body
    focusPolicy: enabled ? Qt.TabFocus : Qt.NoFocus
    opacity: enabled ? 1 : 0.4

    Keys.onReturnPressed: turn()
    Keys.onEnterPressed: turn()
    Accessible.role: Accessible.CheckBox
    Accessible.name: accessibleName
    Accessible.focusable: enabled
    Accessible.description: enabled ? "" : "Unavailable" // of which the toolkit tells nothing
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: turn()
    Accessible.onToggleAction: turn()

    indicator: RoundedRectangle {
        x: root.width - width
        y: Math.round((root.height - height) / 2)
        implicitWidth: 36
        implicitHeight: 21
        radius: height / 2
        color: root.checked ? Theme.accentFill : Theme.offTrack

        Behavior on color {
            ColorAnimation { duration: Motion.time(120) }
        }

        FocusRing {
            shown: root.visualFocus
            base: parent.radius
            gap: 1
        }

        RoundedRectangle {
            x: 2 + root.visualPosition * (parent.width - width - 4)
            y: 2
            width: parent.height - 4
            height: width
            radius: width / 2
            color: Theme.knob
            edgeWidth: 1
            edgeColor: Theme.knobBorder

            Behavior on x {
                enabled: !root.down
                SpringNumber { response: 0.22; dampingFraction: 0.9 }
            }
        }
    }

    contentItem: Label {
        rightPadding: root.indicator.width + root.spacing
        text: root.text
        font: root.font
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
