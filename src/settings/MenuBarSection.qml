pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab
import TarnLoft.Settings

// The program beside its windows: the tray, the taskbar and the panel.
FormSection {
    id: root

    required property SettingsModel model
    readonly property MenuBarPrefs menuBar: model.menuBar

    // Of what the desktop has.
    readonly property string presence: !model.hasTray ? "This desktop has no tray, so Tarn Loft ends when its last window closes."
        : !model.canLeaveTaskbar ? "This desktop doesn’t let programs leave the taskbar. Closing the window keeps Tarn Loft running when “Keep running” is on."
        : Words.here("With the Dock icon off, Tarn Loft lives only in the menu bar. Closing the window keeps it running when “Keep running” is on.")

    title: Words.here("Menu Bar")

    FormRow {
        text: Words.here("Keep running in the menu bar")

        Switch {
            accessibleName: Words.here("Keep running in the menu bar")
            enabled: root.model.hasTray
            checked: root.menuBar.keepRunning
            onToggled: root.menuBar.keepRunning = checked
        }
    }

    FormRow {
        text: Words.here("Show Dock icon")
        note: root.presence

        Switch {
            accessibleName: Words.here("Show Dock icon")
            enabled: root.model.canLeaveTaskbar
            checked: root.menuBar.showDock
            onToggled: root.menuBar.showDock = checked
        }
    }

    FormRow {
        text: "Show in grabber"

        Column {
            spacing: 2

            Switch { width: 150; text: "Colors"; checked: root.menuBar.showColors; onToggled: root.menuBar.showColors = checked }
            Switch { width: 150; text: "Logos & images"; checked: root.menuBar.showLogos; onToggled: root.menuBar.showLogos = checked }
            Switch { width: 150; text: "Type"; checked: root.menuBar.showType; onToggled: root.menuBar.showType = checked }
            Switch { width: 150; text: "Gradients"; checked: root.menuBar.showGradients; onToggled: root.menuBar.showGradients = checked }
            Switch { width: 150; text: "Code"; checked: root.menuBar.showCode; onToggled: root.menuBar.showCode = checked }
        }
    }

    FormRow {
        text: "Start at login"
        note: root.model.loginProblem || "Tarn Loft then waits in the tray, without a window."

        Switch {
            accessibleName: "Start at login"
            enabled: root.model.hasTray
            checked: root.model.startsAtLogin
            onToggled: root.model.startAtLogin(checked)
        }
    }

    FormRow {
        text: "Global shortcut"
        note: (root.model.hotKey?.problem ?? "") || "Click the field, then press a key combination (with at least one modifier) to summon the grabber from any app. Esc cancels."

        Row {
            spacing: 8

            HotKeyRecorder {
                width: Math.max(130, implicitWidth)
                height: 24
                settings: root.model.hotKey
            }

            Button {
                controlSize: ControlSize.Small
                text: "Reset"
                onClicked: root.model.resetHotKey()
            }
        }
    }
}
