pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Sheets

// One version: what it is called and when it was made. Chosen, it shows what it holds as well.
T.ItemDelegate {
    id: root

    required property VersionHistorySheet sheet
    required property int index
    required property string title
    required property string date
    required property bool synced

    readonly property bool chosen: sheet.chosen === index

    implicitHeight: content.height + 16
    focusPolicy: Qt.TabFocus
    onClicked: sheet.choose(index)
    Keys.onReturnPressed: sheet.choose(index)
    Keys.onEnterPressed: sheet.choose(index)
    Keys.onDeletePressed: sheet.remove(index)

    Accessible.role: Accessible.ListItem
    Accessible.name: title + ", " + date + (synced ? ", from another machine" : "")
    Accessible.description: details.item ? details.told : "Shows what it holds"
    Accessible.selectable: true
    Accessible.selected: chosen
    Accessible.onPressAction: sheet.choose(index)

    background: RoundedRectangle {
        radius: Theme.fieldRadius
        color: root.chosen ? Theme.selectedFill : root.down ? Theme.pressedFill
               : root.hovered ? Theme.hoverFill : Theme.thin(Theme.primary, 0.03)

        FocusRing {
            anchors.margins: 0
            shown: root.visualFocus
            base: Theme.fieldRadius - 2
        }
    }

    Column {
        id: content

        x: 10
        y: 8
        width: parent.width - 18
        spacing: 6

        Item {
            width: parent.width
            height: Math.max(words.height, restore.height)

            Symbol {
                id: mark

                anchors.verticalCenter: parent.verticalCenter
                visible: root.synced
                name: "laptopcomputer"
                size: 14
                color: Theme.secondaryLabel
            }

            Column {
                id: words

                anchors.left: root.synced ? mark.right : parent.left
                anchors.leftMargin: root.synced ? 8 : 0
                anchors.right: restore.left
                anchors.rightMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                spacing: 1

                Label {
                    width: parent.width
                    text: root.title
                    font: Theme.font(13, Font.Medium)
                    horizontalAlignment: Text.AlignLeft
                    Accessible.ignored: true
                }

                Label {
                    width: parent.width
                    text: root.date + (root.synced ? " · from another machine" : "")
                    font: Theme.subheadline
                    color: Theme.secondaryLabel
                    Accessible.ignored: true
                }
            }

            Button {
                id: restore

                anchors.right: trash.left
                anchors.rightMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                text: "Restore"
                controlSize: ControlSize.Small
                accessibleName: "Restore " + root.title
                onClicked: root.sheet.restore(root.index)
            }

            Button {
                id: trash

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                symbol: "trash"
                kind: Button.Borderless
                controlSize: ControlSize.Small
                destructive: true
                help: "Delete this version"
                onClicked: root.sheet.remove(root.index)
            }
        }

        LazyItem {
            id: details

            readonly property string named: root.sheet.chosenName && root.sheet.chosenName + " · " + root.sheet.chosenCounts
            readonly property string told: root.chosen ? named + (named && ". ") + root.sheet.chosenDifferences : ""

            width: parent.width
            height: item?.implicitHeight ?? 0
            visible: active
            active: root.chosen && told !== ""
            sourceComponent: Column {
                spacing: 2

                Label {
                    width: parent.width
                    visible: text !== ""
                    text: details.named
                    font: Theme.callout
                    horizontalAlignment: Text.AlignLeft
                }

                Label {
                    width: parent.width
                    text: root.sheet.chosenDifferences
                    font: Theme.subheadline
                    color: Theme.secondaryLabel
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
