pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// A clip's poster, or the dark card without one, under the symbol for playing.
Item {
    id: root

    required property ClipFacet clip
    required property Posters posters

    PosterView {
        anchors.fill: parent
        posters: root.posters
        path: root.clip.path
        fillMode: PosterView.Fill
        radius: Theme.cardRadius
    }

    // Dark through the sign and around it, on posters of any lightness.
    RoundedRectangle {
        anchors.centerIn: play
        width: 32
        height: 32
        radius: 16
        color: Qt.rgba(0, 0, 0, 0.6)
    }

    Symbol {
        id: play

        anchors.centerIn: parent
        name: "play.circle.fill"
        size: 26
        color: Qt.rgba(1, 1, 1, 0.9)
    }
}
