pragma ComponentBehavior: Bound

import TarnLoft.Controls

// A menu button of a section's header.
MenuButton {
    kind: Button.Borderless
    symbolSize: 15
    tint: Theme.secondaryLabel
    atEnd: true
}
