pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What stands beside the sidebar while no brand is open.
Item {
    id: root

    required property ContentModel content
    readonly property real room: width - 32 // for what stands in the middle

    function viewOf(detail: int): Component {
        switch (detail) {
        case ContentModel.Detail.Opening:
            return opening;
        case ContentModel.Detail.Unavailable:
            return unavailable;
        case ContentModel.Detail.Welcome:
            return welcome;
        default:
            return noSelection;
        }
    }

    ScrollArea {
        id: scroll

        anchors.fill: parent
        contentHeight: Math.max(height, detail.y + detail.height + 16)

        LazyItem {
            id: detail

            anchors.horizontalCenter: parent.horizontalCenter
            y: Math.max(16, (scroll.height - height) / 2 - 12) // the optical middle
            sourceComponent: root.viewOf(root.content.detail)
        }
    }

    Component {
        id: noSelection

        EmptyState {
            width: Math.min(320, root.room)
            spacing: 10
            symbol: "books.vertical"
            symbolSize: 46
            title: "No brand selected"
            titleFont: Theme.font(17, Font.DemiBold)
            message: "Pick a brand from the sidebar, or create a new one."
            messageFont: Theme.body

            Button {
                symbol: "plus"
                text: "New Brand"
                kind: Button.Prominent
                onClicked: root.content.askNewBrand()
            }
        }
    }

    Component {
        id: opening

        OpeningView {}
    }

    Component {
        id: unavailable

        UnavailableView {
            width: Math.min(380, root.room)
            alerts: root.content.alerts
        }
    }

    Component {
        id: welcome

        WelcomeView {
            room: root.room
            onCreateRequested: root.content.askNewBrand()
            onImportRequested: root.content.commands.importBrand()
        }
    }
}
