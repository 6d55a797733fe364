pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Whether an item's focus came by the keyboard, for items that aren't template controls.
QtObject {
    id: root

    required property Item item
    readonly property bool used: item.activeFocus && FocusOrigin.keyboard
}
