pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The small text that tells what the thing under the pointer does. Views use `Help` instead, which
// makes one of these, which fades and is gone when it is closed.
T.ToolTip {
    id: root

    visible: true
    implicitWidth: Math.min(implicitContentWidth + leftPadding + rightPadding, 300)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height + 6 : 0
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
