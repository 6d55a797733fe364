pragma ComponentBehavior: Bound

import QtQuick

// A command of the window: its keys work unless a sheet is up, and a CommandItem shows it in a menu.
QtObject {
    id: root

    required property string text
    property string keys: ""
    property string otherKeys: "" // do the same, and no menu shows them
    property bool visible: true // false where the desktop lacks what it needs
    property bool enabled: true
    property bool checkable: false // one of several, or on and off
    property bool checked: false
    property bool keysEnabled: enabled // false where what has the focus takes the keys by itself

    signal activated

    readonly property Shortcut shortcut: Shortcut {
        enabled: root.keysEnabled && root.keys !== ""
        sequences: [root.keys, root.otherKeys]
        onActivated: root.activated()
    }
}
