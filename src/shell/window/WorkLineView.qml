pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// Work that takes long, how far it is, and its end at will. It stands at the bottom of its parent.
Item {
    id: root

    required property WorkLine work

    readonly property bool shown: work.text !== ""
    property string lastText: ""
    property bool cancelled: false // and not ended yet

    anchors.horizontalCenter: parent?.horizontalCenter
    anchors.bottom: parent?.bottom
    anchors.bottomMargin: 20 - (1 - opacity) * 16
    implicitWidth: Math.min(420, (parent?.width ?? 420) - 32)
    implicitHeight: 52
    opacity: shown ? 1 : 0
    visible: opacity > 0

    Accessible.role: Accessible.ProgressBar
    Accessible.name: lastText
    Accessible.ignored: !shown

    Component.onCompleted: lastText = work.text

    Connections {
        target: root.work

        function onTextChanged() {
            root.cancelled = false;
            if (root.shown)
                root.lastText = root.work.text;
        }
    }

    Behavior on opacity {
        SpringNumber { response: 0.25 }
    }

    PanelBackground {
        anchors.fill: parent
        radius: 12
        color: Theme.thinMaterial
        edge: Theme.dark ? Theme.thin("white", 0.12) : Theme.panelBorder
        blur: 12
        drop: 4
    }

    Label {
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: cancel.left
        anchors.rightMargin: 12
        y: 11
        text: root.cancelled ? "Cancelling…" : root.lastText
        font: Theme.font(13, Font.Medium)
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }

    RoundedRectangle {
        id: track

        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: cancel.left
        anchors.rightMargin: 12
        y: 36
        height: 4
        radius: 2
        color: Theme.thin(Theme.primary, Theme.dark ? 0.16 : 0.1)

        RoundedRectangle {
            width: Math.max(height, track.width * root.work.share)
            height: parent.height
            radius: 2
            visible: root.work.share > 0
            color: Theme.accent
        }
    }

    Button {
        id: cancel

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        controlSize: ControlSize.Small
        text: "Cancel"
        enabled: !root.cancelled
        onClicked: {
            root.cancelled = true;
            root.work.cancel();
        }
    }
}
