pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A menu of MenuItem, MenuSeparator, MenuTitle and further menus. Open it with `popup()` under the
// pointer or `popup(item, x, y)`. Arrows, Home, End, Return and Esc work, Tab goes round, and a
// letter goes to the next entry that begins with it. The press that opened it may be pulled onto an
// entry and let go there. The keys are its own from its opening, whatever
// else the press that opened it gave them to. The focus goes back as soon as it begins to close, so
// that no key falls between a menu and what lies under it.
T.Menu {
    id: root

    property real least: 150 // its least width
    property bool filling: false // entries are being added, which is told once at the end
    readonly property real natural: {
        if (filling)
            return 0;
        let most = 0;
        for (let i = 0; i < count; ++i)
            most = Math.max(most, itemAt(i)?.implicitWidth ?? 0);
        return Math.ceil(Math.min(most, 420));
    }
    readonly property real widest: Math.max(least, natural)
    // Room for check marks, wanted as soon as one entry can have one.
    readonly property bool marked: {
        if (filling)
            return false;
        for (let i = 0; i < count; ++i) {
            const entry = itemAt(i) as MenuItem;
            if (entry && entry.checkable)
                return true;
        }
        return false;
    }

    implicitWidth: widest + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: 6
    overlap: 2
    padding: 5
    cascade: true
    modal: false
    focus: true
    delegate: MenuItem {}

    // Makes the first entry after `start` current that can be chosen and begins with `text`, going
    // round; backwards with a `step` of -1.
    function goOn(start: int, step: int, text = "") {
        for (let i = 1; i <= count; ++i) {
            const index = (start + i * step + (i + 1) * count) % count;
            const entry = itemAt(index) as MenuItem;
            if (entry && entry.visible && entry.enabled && entry.text.toLowerCase().startsWith(text.toLowerCase())) {
                currentIndex = index;
                entry.forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    property MenuItem chosen: null // the entry that was carried out last

    function goOnAfterClosing(entry: MenuItem) {
        chosen = entry;
        afterClosing.start();
    }

    readonly property Timer afterClosing: Timer {
        interval: 0
        onTriggered: root.chosen?.afterClosing()
    }

    // For the keys that the template leaves alone, from the menu itself and from its entries.
    function takeKey(event: KeyEvent) {
        event.accepted = true;
        if (event.key === Qt.Key_Home)
            goOn(-1, 1);
        else if (event.key === Qt.Key_End || event.key === Qt.Key_Up && currentIndex < 0)
            goOn(count, -1);
        else if (KeyText.writes(event.text, event.modifiers))
            goOn(currentIndex, 1, event.text);
        else
            event.accepted = false;
    }

    onAboutToShow: {
        focusReturn.remember();
        keysLater.start();
        press.begin(parent);
    }
    onAboutToHide: {
        press.end();
        focusReturn.giveBack();
    }

    // Behind the event that opened it, which may give the focus to what was pressed.
    readonly property Timer keysLater: Timer {
        interval: 0
        onTriggered: {
            if (root.visible && !root.activeFocus)
                root.forceActiveFocus(Qt.PopupFocusReason);
        }
    }

    // The entry at that point of the window, of this or of the menus that are open in it; null for none.
    function entryAt(scenePoint: point): MenuItem {
        for (let i = 0; i < count; ++i) {
            const entry = itemAt(i) as MenuItem;
            const inner = entry?.subMenu as Menu;
            const found = inner?.visible ? inner.entryAt(scenePoint) : null;
            if (found)
                return found;
            if (entry?.contains(entry.mapFromItem(null, scenePoint)))
                return entry;
        }
        return null;
    }

    readonly property MenuPress press: MenuPress {
        onReleased: scenePoint => root.entryAt(scenePoint)?.choose()
    }

    readonly property FocusReturn focusReturn: FocusReturn {
        within: root.parent
        content: root.contentItem
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Motion.time(70) }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Motion.time(110) }
    }

    contentItem: ListView {
        focus: true
        implicitWidth: root.widest
        implicitHeight: contentHeight
        model: root.contentModel
        currentIndex: root.currentIndex
        interactive: contentHeight > height
        clip: interactive
        keyNavigationEnabled: false
        T.ScrollBar.vertical: ScrollBar {}
        Accessible.ignored: true

        Keys.onPressed: event => root.takeKey(event)
    }

    background: PanelBackground {
        color: Theme.menuBackground
        radius: 8
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.title
    }
}
