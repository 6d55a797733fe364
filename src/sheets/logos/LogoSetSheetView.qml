pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// The files of a logo, which live together as one.
Sheet {
    id: root

    required property LogoSetSheet model

    readonly property bool empty: model.variants.count === 0

    accessibleName: "Logo set"
    defaultButton: done

    Column {
        id: content

        width: Math.min(430, root.room)
        spacing: 14

        SheetHead {
            width: parent.width
            front: Symbol {
                name: "square.stack.3d.up.fill"
                size: 18
                color: Theme.accent
            }
            field: TextField {
                width: parent.width
                focus: true
                placeholderText: "Logo name"
                accessibleName: "Logo name"
                text: root.model.name
                onTextEdited: root.model.name = text
                Component.onCompleted: selectAll()
            }

            Button {
                id: done

                text: "Done"
                kind: Button.Prominent
                onClicked: root.close()
            }
        }

        LazyItem {
            width: parent.width
            active: root.empty
            visible: active
            sourceComponent: EmptyState {
                topPadding: 24
                bottomPadding: 24
                symbol: "square.stack.3d.up"
                symbolSize: 32
                title: "No variants yet"
                message: "Add your full-color, mono, reversed, and icon versions —\nthey'll live together as one logo."
            }
        }

        ScrollArea {
            id: scroll

            x: -rows.padding
            width: parent.width + 2 * rows.padding
            height: Math.min(414, contentHeight)
            visible: !root.empty
            contentHeight: rows.height

            Column {
                id: rows

                width: scroll.width
                padding: 3 // for the rings of what has the focus
                spacing: 6

                Repeater {
                    model: root.model.variants
                    delegate: LogoVariantRow {
                        width: rows.width - 2 * rows.padding
                        sheet: root.model
                    }
                }
            }
        }

        Divider {
            width: parent.width
        }

        Item {
            width: parent.width
            height: add.height

            Button {
                id: add

                symbol: "plus"
                text: "Add Variants…"
                onClicked: root.model.addVariants()
            }

            Button {
                id: ungroup

                x: add.width + 8
                visible: root.model.canUngroup
                text: "Ungroup"
                help: "Break this set back into individual image tiles"
                onClicked: root.model.ungroup()
            }

            Label {
                anchors.left: ungroup.visible ? ungroup.right : add.right
                anchors.leftMargin: 12
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: "Drag a thumbnail out to use that file"
                font: Theme.subheadline
                color: Theme.secondaryLabel
                horizontalAlignment: Text.AlignRight
                wrapMode: Text.Wrap
                maximumLineCount: 2
            }
        }
    }

    // Over the whole sheet, under what it shows.
    LogoDropArea {
        parent: root.background
        anchors.fill: parent
        sheet: root.model

        DropFrame {
            anchors.fill: parent
            anchors.margins: 4
            shown: (parent as LogoDropArea).targeted
        }
    }
}
