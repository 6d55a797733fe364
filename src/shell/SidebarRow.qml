pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets
import TarnLoft.Shell

// A brand, or a section of the open one. A brand is dragged by the slot in front of its name.
Item {
    id: root

    required property Sidebar sidebar
    required property Thumbnails thumbnails
    required property bool focused
    required property bool settling // moves of rows are shown just now
    required property int index
    required property int kind
    required property string rowID
    required property string packageURL
    required property string name
    required property emblemLook look
    required property bool marked
    required property bool selected

    readonly property bool isBrand: kind === SidebarModel.Kind.brand
    readonly property bool lifted: isBrand && sidebar.draggingBrandID === rowID
    readonly property color ink: selected ? Theme.accentText : isBrand ? Theme.label : Theme.secondaryLabel

    signal pressed
    signal menuRequested(x: real, y: real)
    signal dragged(x: real, y: real)
    signal dropped

    function activate() {
        if (isBrand)
            sidebar.select(packageURL);
        else
            sidebar.scrollToSection(rowID);
    }

    height: isBrand ? 30 : 26
    Accessible.role: Accessible.ListItem
    Accessible.name: name
    Accessible.focusable: true
    Accessible.selectable: isBrand
    Accessible.selected: selected
    Accessible.onPressAction: activate()

    RoundedRectangle {
        x: 6
        y: slide.offset
        width: parent.width - 12
        height: parent.height
        radius: Theme.fieldRadius
        opacity: root.lifted ? 0.4 : 1
        color: area.pressed ? Theme.pressedFill : area.containsMouse ? Theme.hoverFill : "transparent"

        LazyItem {
            anchors.fill: parent
            active: root.focused
            sourceComponent: FocusRing {
                anchors.margins: 0
                shown: true
                base: Theme.fieldRadius - 3
            }
        }

        RowEmblem {
            id: slot

            x: root.isBrand ? 10 : 28
            anchors.verticalCenter: parent.verticalCenter
            isBrand: root.isBrand
            marked: root.marked
            hovered: area.containsMouse
            selected: root.selected
            look: root.look
            thumbnails: root.thumbnails
        }

        Label {
            id: label

            x: slot.x + (slot.visible ? slot.width + (root.isBrand ? 8 : 6) : 0)
            width: parent.width - x - 10
            height: parent.height
            text: root.name
            font: Theme.font(root.isBrand ? 13 : 12, root.selected ? Font.DemiBold : Font.Normal)
            color: root.ink
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }

    SettlingOffset {
        id: slide

        y: root.y
        active: root.settling
    }

    SidebarRowArea {
        id: area

        anchors.fill: parent
        handleEnd: root.isBrand ? label.x : 0
        onPressed: root.pressed()
        onActivated: root.activate()
        onMenuRequested: (x, y) => {
            if (root.isBrand)
                root.menuRequested(x, y);
        }
        onDragged: (x, y) => root.dragged(x, y)
        onDropped: root.dropped()
    }
}
