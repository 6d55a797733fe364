pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Cut, copy and paste by the right button, for the text field that it stands in.
Item {
    id: root

    required property T.TextField field

    anchors.fill: parent
    Accessible.ignored: true

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: {
            root.field.forceActiveFocus(Qt.MouseFocusReason);
            menu.active = true;
            (menu.item as Menu).popup();
        }
    }

    Loader {
        id: menu

        active: false
        sourceComponent: Menu {
            MenuItem { text: "Cut"; shortcut: "Ctrl+X"; enabled: root.field.selectedText !== "" && !root.field.readOnly; onTriggered: root.field.cut() }
            MenuItem { text: "Copy"; shortcut: "Ctrl+C"; enabled: root.field.selectedText !== ""; onTriggered: root.field.copy() }
            MenuItem { text: "Paste"; shortcut: "Ctrl+V"; enabled: root.field.canPaste; onTriggered: root.field.paste() }
            MenuSeparator {}
            MenuItem { text: "Select All"; shortcut: "Ctrl+A"; onTriggered: root.field.selectAll() }
        }
    }
}
