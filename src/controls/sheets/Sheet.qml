pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A modal card over its window, with the window dimmed behind it.
//   Sheet {
//       defaultButton: create; cancelButton: cancel
//       ColumnLayout { TextField { focus: true } … Button { id: cancel … } Button { id: create … } }
//   }
// `open()` and `close()` show and hide it. The focus starts at the item with `focus: true`, stays
// inside, and goes back to where it was. Return presses the default button unless something inside
// takes it first; Esc presses the cancel button, or closes.
T.Popup {
    id: root

    property Button defaultButton: null
    property Button cancelButton: null
    property string accessibleName: ""
    readonly property real room: (parent?.width ?? 4096) - 2 * (margins + padding) // for the content's width

    function pressDefault() {
        if (defaultButton && defaultButton.enabled)
            defaultButton.press();
    }

    function cancel() {
        if (cancelButton && cancelButton.enabled)
            cancelButton.press();
        else
            close();
    }

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round(Math.max(12, (parent.height - height) * 0.4)) : 0
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 12
    padding: 20
    modal: true
    dim: true
    focus: true
    closePolicy: T.Popup.NoAutoClose

    onAboutToShow: focusReturn.remember()
    onClosed: focusReturn.giveBack()

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
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Motion.time(140) }
        SpringNumber { property: "scale"; from: 0.96; to: 1; response: 0.3; dampingFraction: 0.85 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Motion.time(120) }
    }

    contentItem: FocusScope {
        focus: true
        implicitWidth: childrenRect.width
        implicitHeight: childrenRect.height

        Keys.onReturnPressed: root.pressDefault()
        Keys.onEnterPressed: root.pressDefault()
        Keys.onEscapePressed: root.cancel()
    }

    background: PanelBackground {
        color: Theme.sheetBackground
        radius: Theme.panelRadius
        blur: 24
        drop: 10
    }

    T.Overlay.modal: Rectangle {
        color: Theme.dim

        Behavior on opacity {
            NumberAnimation { duration: Motion.time(140) }
        }
    }
}
