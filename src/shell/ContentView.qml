pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Shell

// What the main window holds: the sidebar, and beside it the open brand or an empty state.
FocusScope {
    id: root

    required property ContentModel content
    required property real initialSidebarWidth
    required property LateViews late // null until they are loaded
    readonly property real sidebarWidth: sidebar.width

    focus: true

    SplitView {
        anchors.fill: parent

        SidebarView {
            id: sidebar

            SplitView.minimumWidth: 200
            SplitView.preferredWidth: root.initialSidebarWidth
            SplitView.maximumWidth: 340
            sidebar: root.content.sidebar
            thumbnails: root.content.thumbnails
            late: root.late
            onNewBrandRequested: root.content.showNewBrand = true
        }

        LazyItem {
            SplitView.fillWidth: true
            sourceComponent: root.late?.detail ?? null
        }
    }

    LazyItem {
        anchors.fill: parent
        sourceComponent: root.late?.overlay ?? null
    }
}
