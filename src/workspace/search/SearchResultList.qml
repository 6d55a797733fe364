// Not bound: the toolkit makes a section's delegate outside of the context that a bound one is for.
import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// The hits, with the brand of the topmost staying on top.
ListView {
    id: list

    required property SearchResults results
    required property Thumbnails thumbnails
    property real contentLeft: 0
    property real contentWidth: 0

    signal picked(row: int)
    signal leaving // upwards, by the keyboard

    clip: true
    model: results
    bottomMargin: 20
    boundsBehavior: Flickable.StopAtBounds
    preferredHighlightBegin: 40 // below the header that stays on top
    preferredHighlightEnd: height - 20
    highlightRangeMode: ListView.ApplyRange
    highlightMoveDuration: 0
    keyNavigationEnabled: true // though the mouse drags no content
    activeFocusOnTab: true
    T.ScrollBar.vertical: ScrollBar {}

    Accessible.role: Accessible.List
    Accessible.name: "Search results"

    Keys.onReturnPressed: picked(currentIndex)
    Keys.onEnterPressed: picked(currentIndex)
    Keys.onUpPressed: {
        if (currentIndex > 0)
            decrementCurrentIndex();
        else
            leaving();
    }
    Keys.onEscapePressed: leaving()
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape // not the page's

    WheelScroll {
        flickable: list
    }

    // qmllint disable unqualified
    section.property: "brand"
    section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
    section.delegate: SearchGroupHeader {
        width: list.width
        results: list.results
        thumbnails: list.thumbnails
        contentLeft: list.contentLeft
        contentWidth: list.contentWidth
    }

    delegate: SearchResultRow {
        x: list.contentLeft - 10
        width: list.contentWidth + 10
        current: ListView.isCurrentItem && list.activeFocus
        onClicked: list.picked(index)
    }
    // qmllint enable unqualified

    Connections {
        target: list.results

        function onChanged() {
            list.currentIndex = 0;
            list.positionViewAtBeginning();
        }
    }
}
