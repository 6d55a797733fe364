pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// A command of the window in a menu.
MenuItem {
    id: root

    required property ShellCommand command

    text: command.text
    shortcut: command.keys
    visible: command.visible
    enabled: command.enabled
    checkable: command.checkable
    onAfterClosing: command.activated()

    // The template turns its own mark by a click, and the command has the say.
    Binding on checked {
        value: root.command.checked
    }
    onToggled: checked = Qt.binding(() => root.command.checked)
}
