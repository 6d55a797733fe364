pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The main window. The program places it and shows it.
Window {
    id: root

    required property ContentModel content
    required property real initialSidebarWidth
    readonly property real sidebarWidth: view.sidebarWidth
    property LateViews late: null // until they are loaded

    title: content.title
    color: Theme.windowBackground

    ContentView {
        id: view

        anchors.fill: parent
        content: root.content
        initialSidebarWidth: root.initialSidebarWidth
        late: root.late
    }
}
