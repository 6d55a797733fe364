pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Shows a colour and lets the user pick another in a popover, without opacity.
//   ColorWell { accessibleName: "Accent color"; color: …; onPicked: color => … }
// `picked` comes at each change, live. With `canSample` the popover has a button that emits
// `sampleRequested`, for a pick from the screen.
T.Button {
    id: root

    required property string accessibleName
    required property color color
    property list<color> swatches // offered in the popover; some of its own where there are none
    property bool canSample: false

    signal picked(color: color)
    signal sampleRequested

    function openPanel() {
        if (!popover)
            popover = making.createObject(root) as Popover;
        if (popover.visible)
            popover.close();
        else
            popover.open();
    }

    property Popover popover: null // made at its first opening
    readonly property Component making: Component {
        Popover {
            accessibleName: root.accessibleName

            ColorPanel {
                focus: true
                color: root.color
                swatches: root.swatches
                canSample: root.canSample
                onPicked: color => root.picked(color)
                onSampleRequested: {
                    root.popover.close();
                    root.sampleRequested();
                }
            }
        }
    }

    implicitWidth: 44
    implicitHeight: 26
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : 0.4
    onClicked: openPanel()
    Keys.onReturnPressed: openPanel()
    Keys.onEnterPressed: openPanel()
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName + ", " + color.toString().toUpperCase()
    Accessible.onPressAction: openPanel()

    background: ButtonBackground {
        control: root
        kind: ButtonBackground.Framed
    }

    contentItem: Item {
        RoundedRectangle {
            anchors.fill: parent
            anchors.margins: 4
            radius: 3
            color: root.color
            edgeWidth: 1
            edgeColor: Theme.thin(Theme.primary, 0.14)
        }
    }
}
