pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Cut, copy and paste by the right button, for the text field that it stands in.
Item {
    id: root

    required property T.TextField field
    property Menu menu: null // made at its first opening

    anchors.fill: parent
    Accessible.ignored: true

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: {
            root.field.forceActiveFocus(Qt.MouseFocusReason);
            if (!root.menu)
                root.menu = making.createObject(root) as Menu;
            root.menu.popup();
        }
    }

    Component {
        id: making

        Menu {
            MenuItem { text: "Cut"; shortcut: "Ctrl+X"; enabled: root.field.selectedText !== "" && !root.field.readOnly; onTriggered: root.field.cut() }
            MenuItem { text: "Copy"; shortcut: "Ctrl+C"; enabled: root.field.selectedText !== ""; onTriggered: root.field.copy() }
            MenuItem { text: "Paste"; shortcut: "Ctrl+V"; enabled: root.field.canPaste; onTriggered: root.field.paste() }
            MenuSeparator {}
            MenuItem { text: "Select All"; shortcut: "Ctrl+A"; onTriggered: root.field.selectAll() }
        }
    }
}
