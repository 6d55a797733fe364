pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Settings

// The look of the program.
FormSection {
    id: root

    required property SettingsModel model

    title: "Appearance"
    note: "Used to highlight the active brand and tint the app. Each brand can override this from its right-click menu (Accent Color…)."

    FormRow {
        text: "Theme"

        PopUpPicker {
            accessibleName: "Theme"
            texts: ["System", "Light", "Dark"]
            currentIndex: root.model.appearanceMode
            onActivated: index => root.model.appearanceMode = index
        }
    }

    FormRow {
        text: "Default accent color"

        ColorWell {
            accessibleName: "Default accent color"
            color: root.model.defaultAccent
            onPicked: color => root.model.defaultAccent = color
        }
    }
}
