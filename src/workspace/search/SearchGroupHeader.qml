pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// Above the hits of one brand: the brand, and how many they are.
Rectangle {
    id: root

    required property SearchResults results
    required property Thumbnails thumbnails
    required property string section // the brand's package
    property real contentLeft: 0
    property real contentWidth: 0

    height: 34
    color: Theme.windowBackground

    Accessible.role: Accessible.Heading
    Accessible.name: name.text + ", " + count.text + (count.text === "1" ? " result" : " results")

    EmblemView {
        id: emblem

        x: root.contentLeft
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: 18
        look: root.results.brandEmblem(root.section)
        thumbnails: root.thumbnails
    }

    Label {
        id: name

        anchors.left: emblem.right
        anchors.leftMargin: 8
        anchors.right: count.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        text: root.results.brandName(root.section)
        font: Theme.font(13, Font.DemiBold)
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }

    Label {
        id: count

        x: root.contentLeft + root.contentWidth - width - 10
        anchors.verticalCenter: parent.verticalCenter
        text: root.results.hitCount(root.section)
        font: Theme.subheadline
        color: Theme.secondaryLabel
        Accessible.ignored: true
    }
}
