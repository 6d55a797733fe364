pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Asks for one of many names. The arrows go through the list while the field has the keyboard.
Sheet {
    id: root

    required property ChoiceSheet model

    accessibleName: model.title
    cancelButton: cancel

    Column {
        width: Math.min(340, root.room)
        spacing: 12

        SheetHead {
            width: parent.width
            title: root.model.title

            Button {
                id: cancel

                text: "Cancel"
                onClicked: root.close()
            }
        }

        SearchField {
            width: parent.width
            focus: true
            placeholderText: root.model.prompt
            accessibleName: root.model.prompt
            text: root.model.filter
            onTextEdited: root.model.filter = text
            onAccepted: root.model.choose(list.currentIndex)
            onLeaving: root.cancel()
            Keys.onDownPressed: list.incrementCurrentIndex()
            Keys.onUpPressed: list.decrementCurrentIndex()
        }

        Item {
            width: parent.width
            height: 10 * 28

            ListView {
                id: list

                anchors.fill: parent
                model: root.model.names
                currentIndex: 0
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                highlightMoveDuration: 0
                T.ScrollBar.vertical: ScrollBar {}
                Accessible.role: Accessible.List
                Accessible.name: root.model.title
                onModelChanged: currentIndex = 0
                delegate: ListRow {
                    required property int index
                    required property string modelData

                    width: list.width
                    focusPolicy: Qt.NoFocus
                    text: modelData
                    selected: ListView.isCurrentItem
                    onClicked: root.model.choose(index)
                }
            }

            Label {
                anchors.centerIn: parent
                visible: list.count === 0
                text: "No matches"
                color: Theme.secondaryLabel
            }
        }
    }
}
