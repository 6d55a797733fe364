pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// A colour alone.
FormSection {
    id: root

    required property EmblemPicker picker

    note: "Shows as a solid colored circle."

    FormRow {
        text: "Color"

        ColorWell {
            accessibleName: "Color"
            color: root.picker.swatch
            swatches: root.picker.swatches
            onPicked: color => root.picker.swatch = color
        }
    }
}
