pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Settings

// The settings window. The program places it and shows it.
Window {
    id: root

    required property SettingsModel model

    function showUpdates() {
        view.showUpdates();
    }

    title: "Settings"
    flags: Qt.Dialog
    width: 460
    height: 640
    minimumWidth: 460
    maximumWidth: 460
    minimumHeight: 240
    maximumHeight: Math.max(640, view.naturalHeight)
    color: Theme.windowBackground

    SettingsView {
        id: view

        // The window's own size is known before that of its content, which would be laid out twice.
        width: root.width
        height: root.height
        model: root.model
        focus: true
        Keys.onEscapePressed: root.close()
    }

    Shortcut {
        sequence: "Ctrl+W"
        onActivated: root.close()
    }
    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
