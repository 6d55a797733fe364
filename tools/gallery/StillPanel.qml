pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A sheet's ground without its window, to look at.
Item {
    default property alias content: holder.data

    width: holder.width + 40
    height: holder.height + 40

    PanelBackground {
        anchors.fill: parent
        color: Theme.sheetBackground
        radius: Theme.panelRadius
        blur: 24
        drop: 10
    }

    Item {
        id: holder

        x: 20
        y: 20
        width: childrenRect.width
        height: childrenRect.height
    }
}
