pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// A clip's poster, or the dark card without one, under the symbol for playing.
Item {
    id: root

    required property Tile tile

    PosterView {
        anchors.fill: parent
        posters: root.tile.workspace.posters
        path: root.tile.path
        fillMode: PosterView.Fill
        radius: Theme.cardRadius
    }

    Shadow {
        anchors.fill: play
        anchors.margins: 4
        radius: width / 2
        blur: 3
        drop: 0
        strength: 0.33
    }

    Symbol {
        id: play

        anchors.centerIn: parent
        name: "play.circle.fill"
        size: 26
        color: Qt.rgba(1, 1, 1, 0.9)
    }
}
