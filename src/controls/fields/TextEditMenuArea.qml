pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Cut, copy and paste by the right button and the Menu key, for the text item that it stands in.
ContextMenuArea {
    id: root

    required property bool hasSelection
    required property bool readOnly
    required property bool canPaste

    signal cut
    signal copied
    signal pasted
    signal allSelected

    onRequested: parent.forceActiveFocus(Qt.PopupFocusReason)
    menu: Menu {
        MenuItem { text: "Cut"; shortcut: "Ctrl+X"; enabled: root.hasSelection && !root.readOnly; onTriggered: root.cut() }
        MenuItem { text: "Copy"; shortcut: "Ctrl+C"; enabled: root.hasSelection; onTriggered: root.copied() }
        MenuItem { text: "Paste"; shortcut: "Ctrl+V"; enabled: root.canPaste; onTriggered: root.pasted() }
        MenuSeparator {}
        MenuItem { text: "Select All"; shortcut: "Ctrl+A"; onTriggered: root.allSelected() }
    }
}
