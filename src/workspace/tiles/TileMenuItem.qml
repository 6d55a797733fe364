pragma ComponentBehavior: Bound

import TarnLoft.Controls

// An entry of a tile's menu that can be chosen.
MenuItem {
    required property var entry // a MenuEntry

    text: entry.text
    enabled: entry.enabled
    destructive: entry.destructive
    checkable: entry.checkable
    checked: entry.checked
    onAfterClosing: entry.trigger()
}
