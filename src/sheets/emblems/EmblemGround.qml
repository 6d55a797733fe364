pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// Whether a symbol or an emoji stands on a colour, and on which.
FormSection {
    id: root

    required property EmblemPicker picker

    FormRow {
        text: "Background color"

        ColorWell {
            visible: root.picker.useBackground
            accessibleName: "Background color"
            color: root.picker.swatch
            swatches: root.picker.swatches
            onPicked: color => root.picker.swatch = color
        }

        Switch {
            anchors.verticalCenter: parent.verticalCenter
            accessibleName: "Background color"
            checked: root.picker.useBackground
            onToggled: root.picker.useBackground = checked
        }
    }
}
