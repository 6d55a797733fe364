pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// At the sidebar's foot: why its brands may not be what is in the library's folder.
WarningBar {
    id: root

    required property ContentModel content

    // Where nothing is listed and open, the empty state tells.
    message: content.detail === ContentModel.Detail.Unavailable ? "" : content.alerts.libraryProblem
    maximumLineCount: 6
    sideMargin: 6
    topMargin: 8

    Button {
        text: "Try Again"
        controlSize: ControlSize.Small
        onClicked: {
            root.blink();
            root.content.alerts.lookAgain();
        }
    }
}
