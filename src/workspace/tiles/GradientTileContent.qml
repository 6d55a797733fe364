pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// A gradient that fills the card.
GradientView {
    required property Tile tile

    gradient: tile.gradient
    radius: Theme.cardRadius
}
