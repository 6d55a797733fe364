pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A small panel that belongs to the item that it stands in, with an arrow that points at it: below
// the item, or above where there is more room. Esc and a press outside close it; the focus comes in
// and goes back.
//   ColorWell { Popover { id: more; Column { … } } … more.open() }
T.Popup {
    id: root

    property int gap: 10 // between the item and the panel, filled by the arrow
    property bool above: false
    property string accessibleName: ""

    function place() {
        if (!parent || !T.Overlay.overlay)
            return;
        const top = parent.mapToItem(T.Overlay.overlay, 0, 0).y;
        const below = T.Overlay.overlay.height - top - parent.height;
        above = below < height + gap + margins && top > below;
    }

    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: above ? -height - gap : (parent ? parent.height + gap : 0)
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 10
    padding: 14
    modal: false
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    onAboutToShow: {
        place();
        focusReturn.remember();
    }
    onAboutToHide: focusReturn.giveBack()

    readonly property FocusReturn focusReturn: FocusReturn {
        within: root.parent
        content: root.contentItem
    }

    // Around the content stands the popup's own item, which is the dialog.
    readonly property Binding naming: Binding {
        target: root.contentItem.parent.Accessible
        property: "name"
        value: root.accessibleName
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Motion.time(110) }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Motion.time(110) }
    }

    contentItem: FocusScope {
        focus: true
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height
    }

    background: PanelBackground {
        color: Theme.menuBackground

        Item {
            readonly property real middle: (root.parent?.width ?? 0) / 2 - root.x

            x: Math.max(20, Math.min(parent.width - 20, middle)) - width / 2
            y: root.above ? parent.height - 1 : 1 - height
            width: 24
            height: 9
            clip: true

            RoundedRectangle {
                anchors.horizontalCenter: parent.horizontalCenter
                y: root.above ? -height / 2 - 1 : parent.height - height / 2 + 1
                width: 13
                height: 13
                rotation: 45
                radius: 2
                color: Theme.menuBackground
                edgeWidth: 1
                edgeColor: Theme.panelBorder
            }
        }
    }
}
