pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A menu of MenuItem, MenuSeparator, MenuTitle and further menus. Open it with `popup()` under the
// pointer or `popup(item, x, y)`. Arrows, Return and Esc work, and a letter goes to the next entry
// that begins with it. Closing gives the focus back.
T.Menu {
    id: root

    property real least: 150 // its least width
    readonly property real natural: {
        let most = 0;
        for (let i = 0; i < count; ++i)
            most = Math.max(most, itemAt(i).implicitWidth);
        return Math.ceil(Math.min(most, 420));
    }
    readonly property real widest: Math.max(least, natural)
    // Room for check marks, wanted as soon as one entry can have one.
    readonly property bool marked: {
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

    function goToLetter(text: string) {
        for (let step = 1; step <= count; ++step) {
            const index = (Math.max(currentIndex, -1) + step + count) % count;
            const entry = itemAt(index) as MenuItem;
            if (entry && entry.enabled && entry.text.toLowerCase().startsWith(text.toLowerCase())) {
                currentIndex = index;
                entry.forceActiveFocus(Qt.TabFocusReason);
                return;
            }
        }
    }

    onAboutToShow: focusReturn.remember()
    onClosed: focusReturn.giveBack()

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

        Keys.onPressed: event => {
            if (event.text.length === 1 && event.text > " " && !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier))) {
                root.goToLetter(event.text);
                event.accepted = true;
            }
        }
    }

    background: PanelBackground {
        color: Theme.menuBackground
        radius: 8
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.title
    }
}
