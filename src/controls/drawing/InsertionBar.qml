pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Where a dragged thing would land: beside a tile, or with `flat` above a row.
//   InsertionBar { shown: …; height: tile.height; x: -7 - width / 2 }
RoundedRectangle {
    required property bool shown
    property bool flat: false

    visible: shown
    enabled: false
    implicitWidth: flat ? 100 : 3
    implicitHeight: flat ? 3 : 100
    radius: 2
    color: Theme.accent
}
