pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What MenuButton and PopUpPicker are for the keyboard and for assistive technology; the button that
// they show stands in it without either. A template control couldn't tell its own role: the toolkit
// takes the template's.
Item {
    id: root

    required property int role
    required property bool open
    property int controlSize: ControlSize.Regular
    property string accessibleName: ""
    property string help: "" // a tool tip

    signal menuRequested

    activeFocusOnTab: true
    Keys.onSpacePressed: menuRequested()
    Keys.onReturnPressed: menuRequested()
    Keys.onEnterPressed: menuRequested()
    Keys.onDownPressed: menuRequested()
    Accessible.role: role
    Accessible.name: accessibleName
    // The desktop's bus knows no role for buttons with a menu.
    Accessible.description: help !== "" && help !== accessibleName ? help : role === Accessible.ButtonMenu ? "Opens a menu" : ""
    Accessible.pressed: open // the nearest that can be told to "expanded"
    Accessible.onPressAction: menuRequested()

    FocusRing {
        shown: root.activeFocus && FocusOrigin.keyboard
        base: Theme.controlRadius(root.controlSize)
        gap: 1
    }
}
