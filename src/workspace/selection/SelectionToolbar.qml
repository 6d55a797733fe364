pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be done with the selected tiles. It comes down from the page's head and goes up again.
Item {
    id: root

    required property SelectionActions selected
    property bool shown: false
    property real contentLeft: 0
    property real contentWidth: 0

    property real share: shown ? 1 : 0 // of it that has come

    height: Math.round(share * 42)
    clip: share < 1
    visible: share > 0

    Behavior on share {
        SpringNumber { response: 0.2; dampingFraction: 0.85 }
    }

    Accessible.role: Accessible.ToolBar
    Accessible.name: "Selection"

    LazyItem {
        y: root.height - height
        width: parent.width
        height: 42
        opacity: root.share
        active: root.visible
        sourceComponent: Rectangle {
            color: Theme.thin(Theme.primary, Theme.dark ? 0.06 : 0.035)

            Row {
                id: tools

                x: root.contentLeft
                anchors.verticalCenter: parent.verticalCenter
                spacing: root.contentWidth < 620 ? 6 : 12

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.selected.count + " selected"
                    font: Theme.font(12, Font.Medium)
                }

                FileDragOut {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.selected.exportableCount > 0
                    selected: root.selected
                }

                Button {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.selected.canGroupAsLogo
                    controlSize: ControlSize.Small
                    text: "Group as Logo"
                    onClicked: root.selected.groupAsLogo()
                }

                Button {
                    anchors.verticalCenter: parent.verticalCenter
                    controlSize: ControlSize.Small
                    text: "Duplicate"
                    onClicked: root.selected.duplicate()
                }

                Button {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: root.selected.hasManyTargets
                    controlSize: ControlSize.Small
                    text: "Move to…"
                    onClicked: root.selected.askTarget()
                }

                MenuButton {
                    anchors.verticalCenter: parent.verticalCenter
                    visible: !root.selected.hasManyTargets
                    controlSize: ControlSize.Small
                    text: "Move to…"
                    enabled: root.selected.targets.length > 0
                    menu: Menu {
                        title: "Move to…"

                        Repeater {
                            model: root.selected.targets
                            delegate: MenuItem {
                                required property int index
                                required property string modelData

                                text: modelData
                                onTriggered: root.selected.moveTo(index)
                            }
                        }
                    }
                }

                Button {
                    anchors.verticalCenter: parent.verticalCenter
                    controlSize: ControlSize.Small
                    destructive: true
                    text: "Delete"
                    onClicked: root.selected.remove()
                }
            }

            Button {
                x: root.contentLeft + root.contentWidth - width
                anchors.verticalCenter: parent.verticalCenter
                controlSize: ControlSize.Small
                text: "Done"
                onClicked: root.selected.clear()
            }
        }
    }
}
