pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// A gradient that fills the card.
GradientView {
    required property GradientFacet facet

    gradient: facet.look
    radius: Theme.cardRadius
}
