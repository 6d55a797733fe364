pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A command of the window in a menu.
MenuItem {
    required property ShellCommand command

    text: command.text
    shortcut: command.keys
    enabled: command.enabled
    onAfterClosing: command.activated()
}
