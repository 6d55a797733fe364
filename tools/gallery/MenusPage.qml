pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Menus and panels"

    Specimen {
        title: "Menu"
        Item {
            width: 300
            height: 300

            Menu {
                visible: true
                closePolicy: Menu.NoAutoClose
                MenuItem { text: "New Brand…"; shortcut: "Ctrl+N" }
                MenuItem { text: "Import Brand…"; shortcut: "Ctrl+Shift+I" }
                MenuSeparator {}
                MenuItem { text: "Export Brand…"; shortcut: "Ctrl+Shift+E"; enabled: false }
                MenuItem { text: "Compact"; checkable: true; checked: true }
                MenuItem { text: "Expanded"; checkable: true }
                MenuSeparator {}
                Menu {
                    title: "Copy Colors as…"
                    MenuItem { text: "CSS Variables" }
                }
                MenuItem { text: "Move to Trash"; destructive: true }
            }
        }
    }
    Specimen {
        title: "Toast"
        Item {
            width: 300
            height: 120
            Toast { message: "Copied #4C6FFF" }
        }
        Item {
            width: 300
            height: 120
            Toast { message: "Copied snippet"; symbol: "checkmark.circle.fill" }
        }
    }
}
