pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The small text that tells what the thing under the pointer does. Views use `Help` instead, which
// makes one of these, which fades and is gone when it is closed.
T.ToolTip {
    id: root

    property real below: 0 // the height of what beneath its item stays in sight
    readonly property real bottom: (parent?.height ?? 0) + below + 6
    readonly property bool fits: !parent || !T.Overlay.overlay || parent.mapToItem(T.Overlay.overlay, 0, bottom).y + height + margins <= T.Overlay.overlay.height

    visible: true
    implicitWidth: Math.min(implicitContentWidth + leftPadding + rightPadding, 300)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: fits ? bottom : -height - 6
    margins: 6
    padding: 5
    leftPadding: 8
    rightPadding: 8
    font: Theme.subheadline
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    onClosed: destroy()

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Motion.time(120) }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Motion.time(80) }
    }

    contentItem: Label {
        text: root.text
        font: root.font
        wrapMode: Text.Wrap
        maximumLineCount: 4
    }

    background: PanelBackground {
        color: Theme.menuBackground
        radius: 5
        blur: 5
        drop: 2
    }
}
