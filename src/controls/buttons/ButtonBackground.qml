pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// The fill, edge and focus ring of everything that is pressed like a button.
RoundedRectangle {
    id: root

    enum Kind {
        Framed,
        Accent,
        Destructive,
        Faint, // seen only under the pointer
        Empty
    }

    required property T.AbstractButton control
    required property int kind
    property bool on: control.checked

    function fill(rest: color, hovered: color, pressed: color): color {
        return control.down ? pressed : control.hovered && control.enabled ? hovered : rest;
    }

    radius: Theme.fieldRadius
    color: {
        switch (kind) {
        case ButtonBackground.Accent:
            if (!control.enabled)
                return Theme.selectedFill;
            return fill(Theme.accentFill, Theme.accentFillHovered, Theme.accentFillPressed);
        case ButtonBackground.Destructive:
            if (!control.enabled)
                return Theme.selectedFill;
            return fill(Theme.destructiveFill, Theme.destructiveFillHovered, Theme.destructiveFillPressed);
        case ButtonBackground.Framed:
            return fill(on ? Theme.controlFillPressed : Theme.controlFill, Theme.controlFillHovered, Theme.controlFillPressed);
        case ButtonBackground.Faint:
            return fill(on ? Theme.selectedFill : "transparent", Theme.hoverFill, Theme.pressedFill);
        default:
            return "transparent";
        }
    }
    edgeWidth: kind === ButtonBackground.Framed ? 1 : 0
    edgeColor: Theme.controlBorder

    FocusRing {
        shown: root.control.visualFocus
        base: root.radius
        gap: 1
    }
}
