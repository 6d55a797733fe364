pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Settings

// Where the brands are kept.
FormSection {
    id: root

    required property SettingsModel model

    title: "Library"
    note: Words.here("Each brand is a portable “.tarnloft” file in this folder. Point it at an iCloud Drive or Dropbox folder to sync across your Macs and share with clients.")

    FormRow {
        text: "Location"

        Label {
            id: location

            width: 290
            text: root.model.location
            font: Theme.callout
            color: Theme.secondaryLabel
            elide: Text.ElideMiddle
            horizontalAlignment: Text.AlignRight
            Accessible.name: "Location, " + text

            Help {
                text: location.truncated ? location.text : ""
            }
        }
    }

    WarningBar {
        width: root.width
        message: root.model.refusal
        maximumLineCount: 6
        sideMargin: 10
        topMargin: 0
        bottomMargin: 10
    }

    WarningBar {
        id: problem

        width: root.width
        message: root.model.libraryProblem
        maximumLineCount: 6
        sideMargin: 10
        topMargin: 0
        bottomMargin: 10

        Button {
            text: "Try Again"
            controlSize: ControlSize.Small
            onClicked: {
                problem.blink();
                root.model.lookAgain();
            }
        }
    }

    FormRow {
        Button {
            text: Words.here("Reveal in Finder")
            onClicked: root.model.revealFolder()
        }

        Button {
            text: "Choose Folder…"
            onClicked: root.model.chooseFolder()
        }
    }
}
