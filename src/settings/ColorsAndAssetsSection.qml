pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Settings

// How colours are copied and assets are shown.
FormSection {
    id: root

    required property SettingsModel model

    title: "Colors & Assets"

    FormRow {
        text: "Click a color to copy"
        note: "Which notation lands on your clipboard when you click a swatch. Right-click a color for any of the others, any time."

        PopUpPicker {
            accessibleName: "Click a color to copy"
            texts: root.model.colorCopyFormats
            currentIndex: root.model.colorCopyFormat
            onActivated: index => root.model.colorCopyFormat = index
        }
    }

    FormRow {
        text: "Asset view"
        note: "Expanded shows colors as detail cards (HEX, RGB, CMYK, WCAG, spot) like the shared brand page. Also switchable from the toolbar."

        PopUpPicker {
            accessibleName: "Asset view"
            texts: ["Compact", "Expanded"]
            currentIndex: root.model.assetDisplayMode
            onActivated: index => root.model.assetDisplayMode = index
        }
    }
}
