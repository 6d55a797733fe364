pragma ComponentBehavior: Bound

import QtQuick

// A command of the window: its keys work unless a sheet is up, and a CommandItem shows it in a menu.
Shortcut {
    required property string text
    required property string keys

    sequences: [keys]
}
