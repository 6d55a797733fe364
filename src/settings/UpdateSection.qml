pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Settings
import TarnLoft.Updates

// New versions of the program, where the desktop can install them.
FormSection {
    id: root

    required property SettingsModel model
    readonly property UpdaterViewModel updater: model.updater

    readonly property int state: updater.state
    readonly property bool checking: state === UpdaterViewModel.Checking
    readonly property bool downloading: state === UpdaterViewModel.Downloading
    readonly property bool installing: state === UpdaterViewModel.Installing
    // There is a version to tell of.
    readonly property bool offering: downloading || installing || state === UpdaterViewModel.Available
        || state === UpdaterViewModel.Installed

    title: "Software Update"
    note: updater.downloadsUpdates ? "Updates install in the background — Tarn Loft only asks you to relaunch."
                                   : "You’ll be notified when an update is available and can choose to install it."

    FormRow {
        text: "Check for updates automatically"

        Switch {
            accessibleName: "Check for updates automatically"
            checked: root.updater.checksForUpdates
            onToggled: root.updater.checksForUpdates = checked
        }
    }

    FormRow {
        text: "Download and install updates automatically"

        Switch {
            accessibleName: "Download and install updates automatically"
            enabled: root.updater.checksForUpdates
            checked: root.updater.downloadsUpdates
            onToggled: root.updater.downloadsUpdates = checked
        }
    }

    FormRow {
        text: root.offering ? "" : root.updater.status

        Spinner {
            anchors.verticalCenter: parent?.verticalCenter
            running: root.checking
        }

        Button {
            visible: root.checking
            text: "Cancel"
            onClicked: root.updater.cancel()
        }

        Button {
            visible: !root.checking
            enabled: root.updater.canCheckForUpdates
            text: "Check for Updates Now…"
            onClicked: root.updater.checkForUpdates()
        }
    }

    WarningBar {
        width: root.width
        message: root.updater.problem
        maximumLineCount: 6
        sideMargin: 10
        topMargin: 0
        bottomMargin: 10
    }

    FormRow {
        visible: root.offering
        text: root.updater.status
        note: root.updater.percent > 0 ? `${root.updater.percent} %` : ""

        Spinner {
            anchors.verticalCenter: parent?.verticalCenter
            running: root.downloading || root.installing
        }

        Button {
            visible: root.downloading
            text: "Cancel"
            onClicked: root.updater.cancel()
        }

        Button {
            visible: root.state === UpdaterViewModel.Available
            kind: Button.Prominent
            text: "Install"
            onClicked: root.updater.install()
        }

        Button {
            visible: root.state === UpdaterViewModel.Installed
            kind: Button.Prominent
            text: "Relaunch"
            onClicked: root.updater.relaunch()
        }
    }

    Label {
        leftPadding: 12
        rightPadding: 12
        bottomPadding: 12
        width: root.width
        visible: root.offering && text !== ""
        text: root.updater.changes
        font: Theme.callout
        color: Theme.secondaryLabel
        wrapMode: Text.Wrap
        lineHeight: 1.15
    }
}
