pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The ring about a control that has the keyboard's focus. Put it into the control's background.
//   FocusRing { shown: control.visualFocus; base: Theme.fieldRadius }
RoundedRectangle {
    id: root

    required property bool shown
    property int gap: 0 // between the control's edge and the ring
    property int base: Theme.fieldRadius // the control's own radius

    anchors.fill: parent
    anchors.margins: -2 - gap
    visible: shown
    enabled: false
    radius: base + 2 + gap
    color: "transparent"
    edgeWidth: 2
    edgeColor: Theme.focusRing
}
