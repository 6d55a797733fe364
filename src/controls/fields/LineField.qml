pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A line of text that is edited in place. At rest it shows its beginning.
TextField {
    id: root

    readonly property bool elided: !activeFocus && contentWidth > width

    // Where the beginning is what it scrolls to, so that a click meets the letter under it. While a
    // menu has the keyboard, what is selected stays.
    function rewind() {
        if (!activeFocus && focusReason !== Qt.PopupFocusReason)
            cursorPosition = 0;
    }

    bordered: false
    horizontalAlignment: TextInput.AlignLeft // of a right-to-left name too
    color: elided ? "transparent" : Theme.label
    onActiveFocusChanged: rewind()
    onTextChanged: rewind()

    Label {
        anchors.fill: parent
        anchors.rightMargin: root.rightPadding
        visible: root.elided
        text: root.text
        font: root.font
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }
}
