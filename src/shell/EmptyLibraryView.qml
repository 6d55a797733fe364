pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Shell

// What stands beside the sidebar while no brand is open.
Item {
    id: root

    required property ContentModel content

    LazyItem {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: -12 // the optical middle
        sourceComponent: root.content.detail === ContentModel.Detail.welcome ? welcome : noSelection
    }

    Component {
        id: noSelection

        EmptyState {
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
                onClicked: root.content.showNewBrand = true
            }
        }
    }

    Component {
        id: welcome

        WelcomeView {
            onCreateRequested: root.content.showNewBrand = true
            onImportRequested: root.content.commands.importBrand()
        }
    }
}
