pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The window's word on a finished action.
Toast {
    font: Theme.font(13, Font.Medium)
    sidePadding: 14
    verticalPadding: 9
    blur: 12
    drop: 4
    bottomDistance: 24
    edge: Theme.dark ? Theme.thin("white", 0.12) : Theme.panelBorder
}
