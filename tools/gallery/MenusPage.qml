pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

Page {
    id: page

    property bool still: true // menus stand open, to be looked at

    title: "Menus"

    Specimen {
        title: "Menu bar"
        MenuBar {
            width: 320
            Menu { title: "File"; MenuItem { text: "New Brand…"; shortcut: "Ctrl+N" } }
            Menu { title: "Edit"; MenuItem { text: "Undo"; shortcut: "Ctrl+Z" } }
            Menu { title: "Insert"; MenuItem { text: "Pick Color from Screen"; shortcut: "Ctrl+P" } }
        }
    }
    Specimen {
        title: "Menus, the first with an entry under the pointer"
        Item {
            width: 560
            height: 270

            Menu {
                visible: page.still
                closePolicy: T.Popup.NoAutoClose
                MenuItem { text: "Copy HEX: #4C6FFF" }
                MenuTitle { text: "Contrast (WCAG)" }
                MenuTitle { prominent: false; text: "On white  4.18:1 · AA Large" }
                MenuSeparator {}
                MenuItem { text: "Duplicate"; shortcut: "Ctrl+D"; highlighted: true }
                MenuItem { text: "Move Left"; enabled: false }
                Menu {
                    title: "Background"
                    MenuItem { text: "Default" }
                }
                MenuSeparator {}
                MenuItem { text: "Delete"; destructive: true }
            }

            Menu {
                x: 280
                visible: page.still
                closePolicy: T.Popup.NoAutoClose
                MenuItem { text: "Default"; checkable: true; checked: true }
                MenuItem { text: "White"; checkable: true }
                MenuItem { text: "Dark"; checkable: true }
                MenuItem { text: "Checkerboard"; checkable: true }
                MenuSeparator {}
                MenuItem { text: "New Brand…"; symbol: "plus"; shortcut: "Ctrl+N" }
                MenuItem { text: "Export Brand Page…"; symbol: "square.and.arrow.up"; shortcut: "Ctrl+Alt+Shift+E" }
            }
        }
    }
}
