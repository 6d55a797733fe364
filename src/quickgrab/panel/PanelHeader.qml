pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// The panel's head: the brand, the ways to the windows, and the search.
FocusScope {
    id: root

    required property QuickGrab grab
    readonly property alias field: search

    signal accepted

    implicitHeight: 10 + switcher.height + 8 + search.implicitHeight + 8

    BrandSwitcher {
        id: switcher

        x: 12
        y: 10
        width: Math.min(implicitWidth, actions.x - x - 14)
        height: implicitHeight
        grab: root.grab
    }

    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: switcher.verticalCenter
        spacing: 2

        Button {
            visible: root.grab.hasSettings
            kind: Button.Borderless
            controlSize: ControlSize.Small
            symbol: "gearshape"
            symbolSize: 14
            help: "Menu Bar settings"
            onClicked: root.grab.openSettingsRequested()
        }

        Button {
            kind: Button.Borderless
            controlSize: ControlSize.Small
            symbol: "macwindow"
            symbolSize: 14
            help: "Open Tarn Loft"
            onClicked: root.grab.openAppRequested()
        }
    }

    GrabSearchField {
        id: search

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 12
        y: switcher.y + switcher.height + 8
        focus: true
        grab: root.grab
        onAccepted: root.accepted()
    }
}
