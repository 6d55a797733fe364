pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What the main window holds: the sidebar, and beside it the open brand or an empty state. Where
// there is no room for both, the sidebar comes over the page when it is asked for.
FocusScope {
    id: root

    required property ContentModel content
    required property real initialSidebarWidth
    required property LateViews late // null until they are loaded
    readonly property real wantedSidebarWidth: pane.SplitView.preferredWidth
    readonly property real sidebarWidth: folded ? wantedSidebarWidth : pane.width
    readonly property bool folded: width > 0 && width < 860

    focus: true
    onFoldedChanged: content.sidebar.folded = folded

    SplitView {
        anchors.fill: parent

        Item {
            id: pane

            SplitView.minimumWidth: 200
            SplitView.preferredWidth: root.initialSidebarWidth
            SplitView.maximumWidth: 340
            visible: !root.folded

            SidebarView {
                id: sidebar

                parent: root.folded ? drawer : pane
                anchors.fill: parent
                sidebar: root.content.sidebar
                thumbnails: root.content.thumbnails
                late: root.late
                onNewBrandRequested: {
                    root.content.sidebar.open = false;
                    root.content.askNewBrand();
                }
            }
        }

        LazyItem {
            id: detail

            readonly property bool inUse: item?.activeFocus ?? false

            SplitView.fillWidth: true
            sourceComponent: root.late?.detail ?? null
            onInUseChanged: if (inUse) root.content.sidebar.open = false
        }
    }

    LazyItem {
        anchors.fill: parent
        active: root.folded
        sourceComponent: root.late?.curtain ?? null
    }

    FocusScope {
        id: drawer

        readonly property bool open: root.content.sidebar.open

        x: open ? 0 : -width
        width: Math.min(root.wantedSidebarWidth, root.width - 56)
        height: parent.height
        visible: open || x > -width
        onOpenChanged: if (open) sidebar.takeFocus()
        Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape // not the page's
        Keys.onEscapePressed: root.content.sidebar.open = false

        Behavior on x {
            enabled: root.folded

            NumberAnimation { duration: Motion.time(160); easing.type: Easing.OutCubic }
        }
    }

    LazyItem {
        anchors.fill: parent
        sourceComponent: root.late?.overlay ?? null
    }
}
