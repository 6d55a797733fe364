pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// The hits of a search in all brands, grouped by brand. The arrows go through them, Return or a click
// picks one.
FocusScope {
    id: root

    required property PageSearch search
    required property Thumbnails thumbnails
    property real contentLeft: 0
    property real contentWidth: 0

    readonly property SearchResults results: search.results

    signal leaving // upwards, by the keyboard

    Rectangle {
        anchors.fill: parent
        color: Theme.windowBackground
    }

    LazyItem {
        anchors.centerIn: parent
        active: root.results.count === 0 && root.results.query === root.search.text
        sourceComponent: EmptyState {
            symbol: "magnifyingglass"
            title: "No matches for “" + root.results.query + "”"
            message: "Searching section and item names across every brand."
        }
    }

    SearchResultList {
        anchors.fill: parent
        focus: true
        results: root.results
        thumbnails: root.thumbnails
        contentLeft: root.contentLeft
        contentWidth: root.contentWidth
        onPicked: row => root.search.pick(row)
        onLeaving: root.leaving()
    }
}
