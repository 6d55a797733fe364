pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Whether there is another colour in the dark, and which: rows of a FormSection.
Column {
    id: root

    required property bool separate
    required property color color

    signal toggled(separate: bool)
    signal picked(color: color)

    topPadding: 1 // the first row isn't the section's first, and has its divider

    FormRow {
        text: "Separate dark mode color"

        Switch {
            accessibleName: "Separate dark mode color"
            checked: root.separate
            onToggled: root.toggled(checked)
        }
    }

    FormRow {
        visible: root.separate
        text: "Dark mode color"

        ColorWell {
            accessibleName: "Dark mode color"
            color: root.color
            onPicked: color => root.picked(color)
        }
    }
}
