pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// A brand on its way to another place: the order follows as the pointer enters rows, and near the
// list's edges the list scrolls.
Item {
    id: root

    required property ListView list
    required property Sidebar sidebar
    required property LateViews late
    property real pointerX: 0
    property real pointerY: 0
    property string lastTarget: ""

    readonly property bool active: sidebar.draggingBrandID !== ""
    readonly property int edge: 28 // within it the list scrolls
    readonly property real pull: pointerY < edge ? pointerY - edge : pointerY > height - edge ? pointerY - height + edge : 0

    function moveTo(row: SidebarRow, point: point) {
        pointerX = point.x;
        pointerY = point.y;
        if (!active) {
            lastTarget = row.rowID;
            sidebar.beginDrag(row.rowID);
        }
        enterRow();
    }

    function enterRow() {
        const y = Math.max(0, Math.min(height - 1, pointerY)) + list.contentY;
        const row = list.itemAt(list.width / 2, y) as SidebarRow;
        const target = row ? row.rowID : y >= list.originY + list.contentHeight ? "end" : "";
        if (target === lastTarget || (row && !row.isBrand))
            return;
        lastTarget = target;
        if (row)
            sidebar.dragEntered(target);
        else if (target === "end")
            sidebar.dragEnteredEnd();
    }

    Timer {
        interval: 16
        repeat: true
        running: root.active && root.pull !== 0
        onTriggered: {
            const end = root.list.originY + root.list.contentHeight + root.list.bottomMargin;
            const most = Math.max(root.list.originY, end - root.list.height);
            const wanted = root.list.contentY + root.pull * 0.35;
            root.list.contentY = Math.max(root.list.originY, Math.min(most, wanted));
            root.enterRow();
        }
    }

    LazyItem {
        x: 10
        y: Math.max(0, Math.min(root.height - height, root.pointerY - height / 2))
        width: root.width - 20
        active: root.active
        sourceComponent: root.late?.dragGhost ?? null
    }
}
