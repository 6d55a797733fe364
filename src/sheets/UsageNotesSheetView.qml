pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The do's and don'ts of an item.
Sheet {
    id: root

    required property UsageNotesSheet model

    property bool adding: false // the next row is the user's, who goes on in it

    function add(kind: int) {
        adding = true;
        model.add(kind);
    }

    accessibleName: "Usage & Notes"
    defaultButton: done

    Column {
        id: content

        width: Math.min(460, root.room)
        spacing: 14

        SheetHead {
            width: parent.width
            title: root.accessibleName
            subtitle: root.model.title
            front: Symbol {
                name: "checklist"
                size: 20
                color: Theme.accent
            }

            Button {
                id: done

                text: "Done"
                kind: Button.Prominent
                onClicked: root.close()
            }
        }

        LazyItem {
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.min(300, parent.width)
            active: root.model.notes.count === 0
            visible: active
            sourceComponent: EmptyState {
                topPadding: 16
                bottomPadding: 16
                symbol: "checklist"
                symbolSize: 32
                title: "No rules yet"
                message: "Add the do's and don'ts for this asset — they'll appear on the brand page."
            }
        }

        ScrollArea {
            id: scroll

            x: -rows.padding
            width: parent.width + 2 * rows.padding
            height: Math.min(300, contentHeight)
            visible: root.model.notes.count > 0
            contentHeight: rows.height

            Column {
                id: rows

                width: scroll.width
                padding: 3 // for the rings of what has the focus
                spacing: 8

                Repeater {
                    id: repeater

                    model: root.model.notes
                    delegate: UsageNoteRow {
                        width: rows.width - 2 * rows.padding
                        sheet: root.model
                    }
                    onItemAdded: (index, item) => {
                        if (!root.adding)
                            return;
                        root.adding = false;
                        reveal.row = item as UsageNoteRow;
                        reveal.start();
                    }
                }
            }
        }

        MenuButton {
            id: addRule

            symbol: "plus"
            text: "Add Rule"
            menu: Menu {
                title: "Add Rule"

                MenuItem { text: "Do"; symbol: "checkmark.circle.fill"; onTriggered: root.add(UsageNotesSheet.Kind.DoRule) }
                MenuItem { text: "Don't"; symbol: "xmark.octagon.fill"; onTriggered: root.add(UsageNotesSheet.Kind.DontRule) }
                MenuItem { text: "Note"; symbol: "info.circle.fill"; onTriggered: root.add(UsageNotesSheet.Kind.Note) }
            }
        }
    }

    // When the new row has its place, and the menu has given the keyboard back.
    Timer {
        id: reveal

        property UsageNoteRow row: null

        interval: 0
        onTriggered: {
            row?.beginTyping();
            if (row)
                scroll.reveal(row);
        }
    }
}
