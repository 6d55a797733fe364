pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// What a brand or a section is marked with: a symbol, an emoji, a colour or a picture.
Sheet {
    id: root

    required property EmblemPicker model

    // Its top stands still while its height follows the kind.
    y: parent ? Math.round(Math.max(12, (parent.height - 540) * 0.4)) : 0
    accessibleName: model.title
    defaultButton: done

    Column {
        id: content

        width: Math.min(400, root.room)
        spacing: 16

        SheetHead {
            width: parent.width
            title: root.model.title
            front: EmblemView {
                look: root.model.look
                thumbnails: root.model.thumbnails
                size: 48
            }
        }

        SegmentedPicker {
            width: parent.width
            accessibleName: "Kind"
            currentIndex: root.model.kind
            options: [
                PickerOption { text: "Symbol" },
                PickerOption { text: "Emoji" },
                PickerOption { text: "Color" },
                PickerOption { text: "Image" }
            ]
            onActivated: index => root.model.kind = index
        }

        FocusScope {
            id: editor

            width: parent.width
            height: childrenRect.height
            clip: growing.running
            focus: true

            Behavior on height {
                enabled: root.opened
                SpringNumber { id: growing; response: 0.28 }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Symbol
                sourceComponent: EmblemSymbolEditor {
                    focus: true
                    picker: root.model
                }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Emoji
                sourceComponent: EmblemEmojiEditor {
                    picker: root.model
                }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Color
                sourceComponent: EmblemColorEditor {
                    picker: root.model
                }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Image
                sourceComponent: EmblemImageEditor {
                    picker: root.model
                }
            }
        }

        Item {
            width: parent.width
            height: done.height

            Button {
                id: none

                text: "No Icon"
                onClicked: {
                    root.model.setNone();
                    root.close();
                }
            }

            Button {
                x: none.width + 8
                text: "Use Default"
                onClicked: {
                    root.model.useDefault();
                    root.close();
                }
            }

            Button {
                id: done

                anchors.right: parent.right
                text: "Done"
                kind: Button.Prominent
                onClicked: root.close()
            }
        }
    }
}
