pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What stays above the page's sections: its title, its tools and, while there is need of them, the
// scopes of the search and the tools of what is selected. In a narrow window the title stands
// beneath the tools.
FocusScope {
    id: root

    required property BrandWorkspace workspace
    property real contentLeft: 0
    property real contentWidth: 0
    property real headStart: 0 // what the window needs in front

    readonly property PageSearch search: workspace.search
    readonly property bool stacked: contentWidth < 720
    readonly property real titleBottom: title.y + title.height
    readonly property real scopesBottom: scopes.visible ? scopes.y + scopes.height : 0
    readonly property alias selectionHeight: selection.height

    property bool searching: false // the scopes show

    signal resultsRequested // the keyboard shall go on there
    signal leaving

    function focusSearch() {
        toolbar.field.forceActiveFocus(Qt.ShortcutFocusReason);
        toolbar.field.selectAll();
    }

    implicitHeight: Math.max(titleBottom, scopesBottom) + 10 + selection.height

    Connections {
        target: root.workspace

        function onSearchRequested() {
            root.focusSearch();
        }
    }

    // A turn later, as the focus may be on its way from the field to the scopes.
    Timer {
        id: followSearch

        interval: 0
        onTriggered: root.searching = toolbar.field.searching || scopes.activeFocus
    }

    BrandTitle {
        id: title

        readonly property real room: (root.stacked ? root.contentLeft + root.contentWidth : toolbar.x - 16) - x

        x: root.stacked ? root.contentLeft : Math.max(root.contentLeft, root.headStart)
        y: root.stacked ? toolbar.y + toolbar.height + 6 : 14
        width: editing ? room : Math.min(room, implicitWidth)
        height: implicitHeight
        name: root.workspace.name
        wholeName: root.workspace.wholeName
        visible: !root.search.global
        onRenamed: name => root.workspace.rename(name)
    }

    Label {
        x: title.x
        y: title.y
        width: title.room
        visible: root.search.global && !root.stacked
        text: "All Brands"
        font: title.titleFont
        Accessible.role: Accessible.Heading
    }

    PageToolbar {
        id: toolbar

        x: root.contentLeft + root.contentWidth - width
        y: root.stacked ? 12 : Math.round(14 + (title.height - height) / 2)
        workspace: root.workspace

        field.onSearchingChanged: followSearch.restart()
        field.onAccepted: root.resultsRequested()
        onDownPressed: root.resultsRequested()
        onLeaving: root.leaving()
    }

    FocusScope {
        id: scopes

        x: toolbar.x + toolbar.field.x
        y: toolbar.y + toolbar.height + 6
        width: toolbar.field.width
        height: bar.height
        visible: root.searching
        onActiveFocusChanged: followSearch.restart()
        Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape // not the page's
        Keys.onEscapePressed: toolbar.field.forceActiveFocus(Qt.BacktabFocusReason)

        ScopeBar {
            id: bar

            currentIndex: root.search.scope
            options: [
                PickerOption { text: "This Brand" },
                PickerOption { text: "All Brands" }
            ]
            onActivated: index => root.search.scope = index
        }
    }

    SelectionToolbar {
        id: selection

        y: parent.height - height
        width: parent.width
        contentLeft: root.contentLeft
        contentWidth: root.contentWidth
        selected: root.workspace.selected
        shown: root.workspace.selected.count > 0 && !root.search.global
    }
}
