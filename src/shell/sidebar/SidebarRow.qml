pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Shell

// A brand, or a section of the open one. A brand is dragged by the slot in front of its name.
Item {
    id: root

    required property Sidebar sidebar
    required property Thumbnails thumbnails
    required property bool focused
    required property bool menuOpen
    required property bool settling // moves of rows are shown just now
    required property int index
    required property int kind
    required property string rowID
    required property string packageURL
    required property string name
    required property emblemLook look
    required property bool marked
    required property bool selected
    required property bool unsaved

    readonly property bool isBrand: kind === SidebarModel.Kind.Brand
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
    Accessible.description: unsaved ? "Changes aren't saved" : ""
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
        color: area.pressed || root.menuOpen ? Theme.pressedFill : area.containsMouse ? Theme.hoverFill : "transparent"

        EmblemView {
            x: root.isBrand ? 10 : 28
            y: (root.height - size) / 2
            visible: root.marked
            look: root.look
            thumbnails: root.thumbnails
            size: root.isBrand ? 18 : 16
            fallbackTint: root.selected ? Theme.accent : Theme.secondaryLabel
        }

        Text {
            id: label

            x: root.isBrand ? 36 : root.marked ? 50 : 28
            width: parent.width - x - (root.unsaved ? 30 : 10)
            height: parent.height
            text: root.name
            font: Theme.font(root.isBrand ? 13 : 12, root.selected ? Font.DemiBold : Font.Normal)
            color: root.ink
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft // of right-to-left names too, beside their marks
            textFormat: Text.PlainText
            verticalAlignment: Text.AlignVCenter
        }

        LazyItem {
            anchors.fill: parent
            active: root.focused || root.unsaved || area.containsMouse
            sourceComponent: RowExtras {
                focused: root.focused
                unsaved: root.unsaved
                overHandle: area.overHandle && !area.dragging
                bare: area.containsMouse && root.isBrand && !root.marked
                handleEnd: area.handleEnd
                overEnd: area.containsMouse && area.mouseX > label.x + label.width
            }
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
        onTaken: root.pressed()
        onActivated: root.activate()
        onMenuRequested: (x, y) => {
            if (root.isBrand)
                root.menuRequested(x, y);
        }
        onDragged: (x, y) => root.dragged(x, y)
        onDropped: root.dropped()
    }
}
