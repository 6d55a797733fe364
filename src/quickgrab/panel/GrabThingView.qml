pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.QuickGrab

// A thing of the panel's list, where it stands.
Item {
    id: root

    required property grabThing thing
    required property QuickGrab grab
    required property bool keyboard // the list is worked in by keys
    required property bool pointed // by the pointer

    readonly property bool held: press.active // by a press that is for this thing
    readonly property bool isEntry: thing.kind !== GrabKind.BlockHeader && thing.kind !== GrabKind.GroupHeader
    readonly property bool isMedia: thing.kind === GrabKind.Media
    readonly property bool isCurrent: isEntry && grab.current === thing.place
    readonly property bool marked: isCurrent && keyboard

    function activate() {
        if (isMedia)
            grab.copyFile(thing.place);
        else
            grab.copy(thing.place);
    }

    x: thing.room.x
    y: thing.room.y
    width: thing.room.width
    height: thing.room.height
    focus: isCurrent
    Accessible.role: isEntry ? Accessible.ListItem : Accessible.Heading
    Accessible.name: thing.name
    Accessible.description: isEntry ? (thing.detail !== "" ? thing.detail + ", " : "") + thing.help : thing.detail
    Accessible.focusable: isEntry
    Accessible.selectable: isEntry
    Accessible.selected: isCurrent
    Accessible.onPressAction: if (isEntry) activate()

    HoverHandler {
        id: hover

        enabled: root.isEntry
    }

    PointHandler {
        id: press
    }

    PlainTap {
        id: tap

        enabled: root.isEntry && !root.isMedia
        onClicked: root.grab.copy(root.thing.place)
    }

    LazyItem {
        anchors.fill: parent
        sourceComponent: {
            switch (root.thing.kind) {
            case GrabKind.BlockHeader:
            case GrabKind.GroupHeader:
                return root.header;
            case GrabKind.Color:
                return root.swatch;
            case GrabKind.Media:
                return root.media;
            default:
                return root.row;
            }
        }
    }

    LazyItem {
        anchors.fill: parent
        active: hover.hovered && root.pointed
        sourceComponent: Help {
            text: root.thing.help
            shown: hover.hovered
        }
    }

    readonly property Component header: Component {
        GrabHeader {
            thing: root.thing
        }
    }

    readonly property Component swatch: Component {
        GrabSwatch {
            thing: root.thing
            hovered: hover.hovered
            pressed: tap.pressed
            marked: root.marked
        }
    }

    readonly property Component media: Component {
        GrabImageTile {
            thing: root.thing
            grab: root.grab
            hovered: hover.hovered
            marked: root.marked
        }
    }

    readonly property Component row: Component {
        GrabRow {
            thing: root.thing
            hovered: hover.hovered
            pressed: tap.pressed
            marked: root.marked
        }
    }
}
