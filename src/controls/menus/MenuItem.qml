pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// An entry of a menu.
//   MenuItem { text: "New Brand…"; shortcut: "Ctrl+N"; onTriggered: … }
// The shortcut is only shown; an entry with an `action` shows that one's and carries it out.
T.MenuItem {
    id: root

    property string shortcut: action && action.shortcut ? action.shortcut : ""
    property string symbol: ""
    property bool destructive: false

    // Follows `triggered` when the menu has closed: for what waits for the user in a dialog of the
    // desktop, behind which the menu would stay.
    signal afterClosing

    readonly property bool chosen: highlighted && enabled
    readonly property color ink: chosen ? (destructive ? Theme.onDestructive : Theme.onAccent)
                                        : !enabled ? Theme.tertiaryLabel : destructive ? Theme.destructive : Theme.label
    readonly property int markWidth: root.menu && (root.menu as Menu)?.marked ? 20 : 0

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: visible ? 25 : 0
    leftPadding: 9 + markWidth
    rightPadding: subMenu ? 26 : 9
    spacing: 24
    font: Theme.body

    // As a click does.
    function choose() {
        if (enabled && !subMenu)
            triggered();
    }

    onTriggered: (menu as Menu)?.goOnAfterClosing(root)

    // Here, since the template would take Tab for itself.
    Keys.onPressed: event => {
        event.accepted = false;
        (menu as Menu)?.takeKey(event);
    }

    Accessible.role: Accessible.MenuItem
    Accessible.name: text
    Accessible.description: KeyText.display(shortcut)
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: triggered()

    contentItem: MenuItemContent {
        text: root.text
        symbol: root.symbol
        keys: KeyText.display(root.shortcut)
        color: root.ink
        keysColor: root.chosen || !enabled ? root.ink : Theme.secondaryLabel
        spacing: root.spacing
    }

    indicator: LazyItem {
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        active: root.checked
        sourceComponent: Symbol {
            name: "checkmark"
            size: 11
            weight: Font.DemiBold
            color: root.ink
        }
    }

    arrow: LazyItem {
        x: root.width - implicitWidth - 6
        anchors.verticalCenter: parent.verticalCenter
        active: root.subMenu !== null
        sourceComponent: Symbol {
            name: "chevron.right"
            size: 11
            color: root.chosen ? root.ink : Theme.secondaryLabel
        }
    }

    background: RoundedRectangle {
        radius: 5
        color: root.chosen ? (root.destructive ? Theme.destructiveFill : Theme.accentFill) : "transparent"
    }
}
