pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Settings

// The program's settings as one scrolling form, live both ways.
//   SettingsView { model: …; width: 460; height: 640 }
FocusScope {
    id: root

    required property SettingsModel model
    readonly property real naturalHeight: form.height

    // Scrolls to what is said of updates.
    function showUpdates() {
        form.forceLayout();
        area.reveal(updates);
    }

    Accessible.role: Accessible.Pane
    Accessible.name: "Settings"

    ScrollArea {
        id: area

        anchors.fill: parent
        contentHeight: form.height

        Column {
            id: form

            x: Math.round((area.width - width) / 2)
            width: Math.min(area.width, 520) - 40
            topPadding: 18
            bottomPadding: 22
            spacing: 24

            LibrarySection {
                width: parent.width
                model: root.model
            }

            UpdateSection {
                id: updates

                width: parent.width
                visible: root.model.updater.isThere
                model: root.model
            }

            ColorsAndAssetsSection {
                width: parent.width
                model: root.model
            }

            MenuBarSection {
                width: parent.width
                model: root.model
            }

            AppearanceSection {
                width: parent.width
                model: root.model
            }
        }
    }
}
