pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Shell

// The left column: the window's menus, the brands, and the button that makes one.
Rectangle {
    id: root

    required property Sidebar sidebar
    required property Thumbnails thumbnails
    required property LateViews late

    signal newBrandRequested

    // For the keyboard, from wherever it was.
    function takeFocus() {
        const reason = FocusOrigin.keyboard ? Qt.TabFocusReason : Qt.MouseFocusReason;
        if (list.count > 0)
            list.forceActiveFocus(reason);
        else
            newBrand.forceActiveFocus(reason);
    }

    color: Theme.sidebarBackground

    Item {
        id: top

        width: parent.width
        height: 44
    }

    LazyItem {
        x: 2
        width: top.width - 4
        anchors.verticalCenter: top.verticalCenter
        sourceComponent: root.late?.header ?? null
    }

    Label {
        id: heading

        anchors.top: top.bottom
        width: parent.width
        height: 26
        leftPadding: 16
        text: "Brands"
        font: Theme.font(11, Font.DemiBold)
        color: Theme.secondaryLabel
        verticalAlignment: Text.AlignVCenter
    }

    SidebarList {
        id: list

        anchors.top: heading.bottom
        anchors.bottom: problem.top
        width: parent.width
        sidebar: root.sidebar
        thumbnails: root.thumbnails
        late: root.late
        onRowDragged: (row, point) => drag.moveTo(row, point)
        onRowDropped: root.sidebar.endDrag()
    }

    SidebarDrag {
        id: drag

        anchors.fill: list
        list: list
        sidebar: root.sidebar
        late: root.late
    }

    Divider {
        anchors.bottom: list.bottom
        width: parent.width
        visible: list.contentHeight > list.height
    }

    LazyItem {
        id: problem

        anchors.bottom: foot.top
        width: parent.width
        sourceComponent: root.late?.libraryProblem ?? null
    }

    Item {
        id: foot

        anchors.bottom: parent.bottom
        width: parent.width
        height: newBrand.height + 20

        Button {
            id: newBrand

            x: 10
            anchors.verticalCenter: parent.verticalCenter
            symbol: "plus"
            text: "New Brand"
            kind: Button.Borderless
            tint: Theme.secondaryLabel
            onClicked: root.newBrandRequested()
        }
    }
}
