pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// A brand's accent, in the light and in the dark.
Sheet {
    id: root

    required property AccentColorSheet model

    accessibleName: "Brand Accent Color"
    defaultButton: done

    Column {
        id: content

        width: Math.min(320, root.room)
        spacing: 16

        SheetHead {
            width: parent.width
            title: root.accessibleName
            front: RoundedRectangle {
                width: 32
                height: 32
                radius: 16
                color: root.model.accent
                edgeWidth: 1
                edgeColor: Theme.thin(Theme.primary, 0.08)
            }
        }

        FormSection {
            width: parent.width
            note: root.model.own ? "Overrides the default accent while this brand is active." : "Using the app default accent."

            FormRow {
                text: "Accent color"

                ColorWell {
                    accessibleName: "Accent color"
                    focus: true
                    color: root.model.accent
                    onPicked: color => root.model.pick(color)
                }
            }

            DarkVariantControls {
                width: parent.width
                separate: root.model.separateDark
                color: root.model.darkAccent
                onToggled: separate => root.model.separateDark = separate
                onPicked: color => root.model.pickDark(color)
            }
        }

        Item {
            width: parent.width
            height: done.height

            Button {
                text: "Use Default"
                enabled: root.model.own || root.model.separateDark
                onClicked: root.model.useDefault()
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
