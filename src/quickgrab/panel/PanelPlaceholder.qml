pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// What the panel says where it has nothing to show.
Item {
    id: root

    required property QuickGrab grab

    readonly property var words: {
        switch (grab.state) {
        case QuickGrab.NoBrand:
            return ["books.vertical", "No brand open", "Pick a brand above, or open Tarn Loft to create one."];
        case QuickGrab.NoTypes:
            return ["slider.horizontal.3", "No asset types enabled", "Turn on Colors, Logos, and more in Settings → Menu Bar."];
        case QuickGrab.NoMatches:
            return ["tray", "No matches", "Try a different search."];
        default:
            return ["tray", "Nothing to grab here", "This brand has no assets of the enabled types yet."];
        }
    }

    EmptyState {
        anchors.centerIn: parent
        width: parent.width - 48
        symbol: root.words[0]
        symbolColor: Theme.secondaryLabel
        title: root.words[1]
        message: root.words[2]

        Button {
            visible: !root.grab.hasDocument
            controlSize: ControlSize.Small
            text: "Open Tarn Loft"
            onClicked: root.grab.openAppRequested()
        }
    }
}
