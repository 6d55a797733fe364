pragma ComponentBehavior: Bound

import QtQuick
import QtQml.Models
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be done with a section as a whole.
Menu {
    id: root

    required property SectionModel section

    title: "Section options"

    MenuItem { text: "Set Icon…"; onAfterClosing: root.section.editEmblem() }

    Instantiator {
        active: root.section.hasColors
        delegate: Menu {
            id: formats

            title: "Copy Colors as…"

            Repeater {
                model: root.section.paletteFormats()
                delegate: MenuItem {
                    required property string modelData

                    text: modelData
                    onTriggered: root.section.copyColors(modelData)
                }
            }
        }
        onObjectAdded: (index, menu) => root.insertMenu(1, menu as Menu)
        onObjectRemoved: (index, menu) => root.removeMenu(menu as Menu)
    }

    MenuSeparator {}
    MenuItem { text: "Move Section Up"; enabled: root.section.canMoveUp; onTriggered: root.section.moveUp() }
    MenuItem { text: "Move Section Down"; enabled: root.section.canMoveDown; onTriggered: root.section.moveDown() }
    MenuSeparator {}
    MenuItem { text: "Delete Section"; destructive: true; onTriggered: root.section.remove() }
}
