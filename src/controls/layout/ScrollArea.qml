pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Content that scrolls up and down, with a slim bar. It is as wide as the area unless told.
//   ScrollArea { Column { width: parent.width … } }
// `reveal(item)` scrolls just so far that the item shows; the keyboard's focus is followed so.
Flickable {
    id: root

    property bool followsFocus: true

    function reveal(item: Item) {
        const top = item.mapToItem(contentItem, 0, 0).y;
        const room = 12;
        const most = Math.max(0, contentHeight - height);
        if (top - room < contentY)
            contentY = Math.max(0, top - room);
        else if (top + item.height + room > contentY + height)
            contentY = Math.min(most, top - room, top + item.height + room - height);
    }

    function holds(item: Item): bool {
        for (let one = item; one; one = one.parent) {
            if (one === contentItem)
                return true;
        }
        return false;
    }

    contentWidth: width
    contentHeight: contentItem.childrenRect.height
    boundsBehavior: Flickable.StopAtBounds
    clip: true

    T.ScrollBar.vertical: ScrollBar {}

    WheelScroll {
        flickable: root
    }

    Connections {
        target: root.followsFocus ? root.Window.window : null

        function onActiveFocusItemChanged() {
            const item = root.Window.window.activeFocusItem;
            if (item && FocusOrigin.keyboard && root.holds(item))
                root.reveal(item);
        }
    }
}
