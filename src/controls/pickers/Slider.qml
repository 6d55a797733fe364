pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A value of a range. Arrows move it by `stepSize`, or by a hundredth of the range.
//   Slider { accessibleName: "Quality"; from: 0.3; to: 1; value: …; onMoved: … }
// `moved` tells of the user's changes alone.
T.Slider {
    id: root

    required property string accessibleName

    implicitWidth: 160
    implicitHeight: 22
    padding: 0
    opacity: enabled ? 1 : 0.4

    Accessible.role: Accessible.Slider
    Accessible.name: accessibleName
    Accessible.onIncreaseAction: { increase(); moved(); }
    Accessible.onDecreaseAction: { decrease(); moved(); }

    background: RoundedRectangle {
        y: Math.round((root.height - height) / 2)
        width: root.width
        height: 4
        radius: 2
        color: Theme.offTrack

        RoundedRectangle {
            visible: root.visualPosition > 0
            width: root.visualPosition * (root.width - 18) + 9
            height: 4
            radius: 2
            color: Theme.accentFill
        }
    }

    handle: RoundedRectangle {
        x: root.visualPosition * (root.width - width)
        y: Math.round((root.height - height) / 2)
        width: 18
        height: 18
        radius: 9
        color: root.pressed && !Theme.dark ? "#f0f0f2" : Theme.knob
        edgeWidth: 1
        edgeColor: Theme.knobBorder

        FocusRing {
            shown: root.visualFocus
            base: 9
        }
    }
}
