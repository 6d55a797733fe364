pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// The hint on a swatch that a click copies it. The swatch is the card itself.
Item {
    id: root

    required property ColorFacet swatch
    property bool hovering: false

    LazyItem {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 6
        active: root.hovering
        sourceComponent: RoundedRectangle {
            width: mark.width + 12
            height: mark.height + 12
            radius: 6
            color: Qt.rgba(0, 0, 0, 0.14)

            Symbol {
                id: mark

                anchors.centerIn: parent
                name: "doc.on.doc"
                size: 10
                weight: Font.DemiBold
                color: root.swatch.ink || Theme.primary
                opacity: 0.9
            }
        }
    }
}
