pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A choice of one of a few, all in sight.
//   SegmentedPicker { options: [PickerOption { text: "Symbol" }, …]; currentIndex: …; onActivated: index => … }
// One stop for Tab; arrows move the choice. `activated` tells of the user's choices only; the view
// stores the choice and so moves `currentIndex`.
FocusScope {
    id: root

    property list<PickerOption> options
    property int currentIndex: 0
    property int controlSize: ControlSize.Regular
    property string accessibleName: ""
    property bool equalWidths: true

    signal activated(index: int)

    readonly property PickerOption chosen: currentIndex >= 0 && currentIndex < options.length ? options[currentIndex] : null
    readonly property int inset: 2
    readonly property real widest: {
        let most = 0;
        for (let i = 0; i < segments.count; ++i)
            most = Math.max(most, segments.itemAt(i)?.implicitWidth ?? 0);
        return most;
    }

    implicitWidth: row.implicitWidth + 2 * inset
    implicitHeight: Theme.controlHeight(controlSize)
    opacity: enabled ? 1 : 0.4

    function choose(index: int) {
        if (index >= 0 && index < options.length && index !== currentIndex)
            activated(index);
    }

    // The focus goes with the choice, which the view may refuse.
    function chooseByKey(index: int) {
        choose(index);
        segments.itemAt(currentIndex)?.forceActiveFocus(Qt.TabFocusReason);
    }

    Keys.onLeftPressed: chooseByKey(currentIndex - 1)
    Keys.onRightPressed: chooseByKey(currentIndex + 1)
    Accessible.role: Accessible.Grouping
    Accessible.name: accessibleName
    Accessible.description: chosen?.text || chosen?.help || ""

    RoundedRectangle {
        anchors.fill: parent
        radius: Theme.controlRadius(root.controlSize) + 1
        color: Theme.track

        FocusRing {
            shown: root.activeFocus && keyboard.used
            base: parent.radius
        }
    }

    KeyboardFocus {
        id: keyboard
        item: root
    }

    RoundedRectangle {
        id: thumb

        readonly property Item segment: root.currentIndex >= 0 && segments.count > 0 ? segments.itemAt(root.currentIndex) : null

        x: root.inset + (segment?.x ?? 0)
        y: root.inset
        width: segment?.width ?? 0
        height: root.height - 2 * root.inset
        visible: segment !== null
        radius: Theme.controlRadius(root.controlSize) - 1
        color: Theme.trackThumb
        edgeWidth: Theme.dark ? 0 : 1
        edgeColor: Theme.thin(Theme.primary, 0.06)

        Behavior on x {
            enabled: thumb.width > 0
            SpringNumber { response: 0.25; dampingFraction: 0.9 }
        }
    }

    Row {
        id: row

        x: root.inset
        y: root.inset

        Repeater {
            id: segments

            model: root.options
            delegate: Segment {
                width: root.equalWidths ? Math.max(root.widest, (root.width - 2 * root.inset) / root.options.length) : implicitWidth
                height: root.height - 2 * root.inset
                chosen: index === root.currentIndex
                focusPolicy: chosen ? Qt.TabFocus : Qt.NoFocus
                controlSize: root.controlSize
                onClicked: root.choose(index)
            }
        }
    }
}
