pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The page's tools: its versions, how its tiles look, and the search field.
Row {
    id: root

    required property BrandWorkspace workspace
    readonly property alias field: search

    signal downPressed
    signal leaving

    spacing: 10

    Button {
        anchors.verticalCenter: parent.verticalCenter
        symbol: "clock.arrow.circlepath"
        symbolSize: 16
        kind: Button.Borderless
        tint: Theme.secondaryLabel
        help: "Version history"
        onClicked: root.workspace.showVersions()
    }

    SegmentedPicker {
        anchors.verticalCenter: parent.verticalCenter
        accessibleName: "Compact or expanded asset view"
        currentIndex: root.workspace.expanded ? 1 : 0
        options: [
            PickerOption { symbol: "rectangle"; help: "Compact" },
            PickerOption { symbol: "list.bullet.below.rectangle"; help: "Expanded" }
        ]
        onActivated: index => root.workspace.expanded = index === 1
    }

    SegmentedPicker {
        anchors.verticalCenter: parent.verticalCenter
        accessibleName: "Tile size — small, medium, large"
        currentIndex: root.workspace.tileSize
        options: [
            PickerOption { symbol: "square.grid.3x3"; help: "small" },
            PickerOption { symbol: "square.grid.2x2"; help: "medium" },
            PickerOption { symbol: "square"; help: "large" }
        ]
        onActivated: index => root.workspace.tileSize = index
    }

    SearchField {
        id: search

        anchors.verticalCenter: parent.verticalCenter
        width: 200
        placeholderText: "Search " + root.workspace.name
        text: root.workspace.search.text
        onTextEdited: root.workspace.search.text = text
        Keys.onDownPressed: root.downPressed()
        onLeaving: root.leaving()
    }
}
