pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// What a brand or a section is marked with: a symbol, an emoji, a colour or a picture.
Sheet {
    id: root

    required property EmblemPicker model

    readonly property real room: (parent?.width ?? 400) - 2 * (margins + padding) // in a narrow window

    // Its top stands still while its height follows the kind.
    y: parent ? Math.round(Math.max(12, (parent.height - 540) * 0.4)) : 0
    accessibleName: model.title
    defaultButton: done

    Column {
        id: content

        width: Math.min(400, root.room)
        spacing: 16

        Item {
            width: parent.width
            height: 48

            EmblemView {
                id: emblem

                look: root.model.look
                thumbnails: root.model.thumbnails
                size: 48
            }

            Label {
                anchors.left: emblem.right
                anchors.leftMargin: 14
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.title
                font: Theme.headline
                horizontalAlignment: Text.AlignLeft
                Accessible.role: Accessible.Heading
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
                sourceComponent: FocusScope {
                    height: symbols.height + 12 + ground.height
                    focus: true

                    SymbolGrid {
                        id: symbols

                        width: parent.width
                        focus: true
                        picker: root.model
                    }

                    EmblemGround {
                        id: ground

                        y: symbols.height + 12
                        width: parent.width
                        picker: root.model
                    }
                }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Emoji
                sourceComponent: Column {
                    spacing: 14

                    LabeledField {
                        width: parent.width
                        label: "Emoji"

                        TextField {
                            id: emoji

                            width: parent.width
                            focus: true
                            accessibleName: "Emoji"
                            placeholderText: root.model.presets()[0]
                            font: Theme.emoji(18)
                            text: root.model.emoji
                            onTextEdited: {
                                root.model.emoji = text;
                                text = Qt.binding(() => root.model.emoji);
                            }
                        }
                    }

                    Label {
                        width: parent.width
                        text: root.model.emojiTip()
                        font: Theme.subheadline
                        color: Theme.secondaryLabel
                        wrapMode: Text.Wrap
                    }

                    Grid {
                        id: presets

                        width: parent.width
                        columns: 6
                        spacing: 6

                        Repeater {
                            model: root.model.presets()
                            delegate: Button {
                                required property string modelData

                                width: (presets.width - 30) / 6
                                height: 48
                                text: modelData
                                font: Theme.emoji(24)
                                leftPadding: 0
                                kind: modelData === root.model.emoji ? Button.Bordered : Button.Borderless
                                onClicked: root.model.emoji = modelData
                            }
                        }
                    }

                    EmblemGround {
                        width: parent.width
                        picker: root.model
                    }
                }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Color
                sourceComponent: FormSection {
                    note: "Shows as a solid colored circle."

                    FormRow {
                        text: "Color"

                        ColorWell {
                            accessibleName: "Color"
                            color: root.model.swatch
                            swatches: root.model.swatches
                            onPicked: color => root.model.swatch = color
                        }
                    }
                }
            }

            LazyItem {
                width: parent.width
                active: root.model.kind === EmblemPicker.Image
                sourceComponent: Column {
                    topPadding: 20
                    bottomPadding: 20
                    spacing: 12

                    Button {
                        anchors.horizontalCenter: parent.horizontalCenter
                        symbol: "photo"
                        text: "Choose Image…"
                        onClicked: root.model.chooseImage()
                    }

                    Label {
                        width: parent.width
                        text: root.model.hasImage ? "Image set — shown cropped to a circle." : "Pick an image; it will be cropped to a circle."
                        font: Theme.subheadline
                        color: Theme.secondaryLabel
                        horizontalAlignment: Text.AlignHCenter
                        wrapMode: Text.Wrap
                    }
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
