pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A time of a clip, as wide as the longest one of it, so that what is beside it stands still.
Label {
    id: root

    required property string sample // a time with as many figures as the longest one

    width: Math.max(38, Math.ceil(widest.advanceWidth))
    font: Theme.subheadline
    color: Theme.secondaryLabel
    elide: Text.ElideNone

    TextMetrics {
        id: widest

        font: root.font
        text: root.sample.replace(/[0-9]/g, "0")
    }
}
