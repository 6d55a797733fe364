pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What stands beside the sidebar while the library can't be read.
EmptyState {
    id: root

    required property Alerts alerts

    spacing: 10
    symbol: "exclamationmark.triangle"
    symbolSize: 46
    title: "The library can't be opened"
    titleFont: Theme.font(17, Font.DemiBold)
    message: alerts.libraryProblem
    messageFont: Theme.body

    Button {
        text: "Try Again"
        kind: Button.Prominent
        onClicked: {
            tried.restart();
            root.alerts.lookAgain();
        }
    }

    // Tells that it was tried, which may have changed nothing.
    NumberAnimation {
        id: tried

        target: root
        property: "opacity"
        from: 0.25
        to: 1
        duration: Motion.time(450)
    }
}
