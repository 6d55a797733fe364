pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Workspace

// Scrolls a page on while a drag waits near its upper or lower edge. However the page scrolls, what
// comes under the drag becomes its target.
//   DragScroll { anchors.fill: page; head: scroll.y; flickable: scroll }
DragWatch {
    id: root

    required property Flickable flickable
    property real head: 0 // the height of what stands above the page, over which it scrolls up too
    property real edge: 48 // points from the edge
    property real fastest: 900 // points a second

    // From -1 at the upper edge to 1 at the lower one.
    readonly property real pull: {
        if (hoverY < 0)
            return 0;
        if (hoverY < head + edge)
            return Math.max(0, hoverY - head) / edge - 1;
        return Math.max(0, 1 - (height - hoverY) / edge);
    }

    Connections {
        target: root.flickable

        function onContentYChanged() {
            root.repeatSoon();
        }
    }

    FrameAnimation {
        running: root.pull !== 0
        onTriggered: {
            const most = Math.max(0, root.flickable.contentHeight - root.flickable.height);
            const moved = root.flickable.contentY + root.pull * root.fastest * frameTime;
            root.flickable.contentY = Math.max(0, Math.min(most, moved));
        }
    }
}
