pragma ComponentBehavior: Bound

import TarnLoft.Controls

// A line of a tile's menu that tells.
MenuTitle {
    required property var entry // a MenuEntry

    text: entry.text
    prominent: entry.prominent
}
