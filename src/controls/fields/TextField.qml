pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A field of one line. `placeholderText` is its prompt and, with no `accessibleName`, its name.
//   TextField { placeholderText: "Brand name"; text: …; onTextEdited: … }
// Entered by Tab it selects its text. Return emits `accepted` and then goes on to the sheet's
// default button. A right click offers cut, copy and paste. Of a text that is too long for a field
// the beginning shows, to be cleared alone: it never stands for the whole.
T.TextField {
    id: root

    property bool bordered: true
    property int controlSize: ControlSize.Regular
    property string accessibleName: placeholderText
    readonly property real fieldPadding: bordered ? 8 : 0
    readonly property bool isCut: length >= maximumLength && text !== typed
    property string typed: "" // the user's last

    implicitWidth: bordered ? 200 : Math.max(contentWidth, prompt.implicitWidth) + leftPadding + rightPadding + 2
    implicitHeight: bordered ? Theme.controlHeight(controlSize) : Math.ceil(contentHeight)
    leftPadding: fieldPadding
    rightPadding: fieldPadding + (isCut ? 24 : 0)
    maximumLength: 4000
    readOnly: isCut
    font: Theme.font(Theme.controlText(controlSize))
    color: Theme.label
    placeholderTextColor: Theme.placeholder
    selectionColor: Theme.textSelection
    selectedTextColor: Theme.label
    verticalAlignment: TextInput.AlignVCenter
    selectByMouse: true
    opacity: enabled ? 1 : 0.45

    // At rest it shows its beginning.
    function showText() {
        ensureVisible(activeFocus ? cursorPosition : 0);
    }

    onTextChanged: showText()
    onTextEdited: typed = text
    onWidthChanged: showText()
    onActiveFocusChanged: {
        if (activeFocus && (focusReason === Qt.TabFocusReason || focusReason === Qt.BacktabFocusReason))
            selectAll();
        showText();
    }
    Component.onCompleted: showText()

    Accessible.role: Accessible.EditableText
    Accessible.name: accessibleName
    Accessible.editable: !readOnly

    cursorDelegate: TextCursor {
        field: root
    }

    Label {
        id: prompt

        x: root.leftPadding
        width: root.width - root.leftPadding - root.rightPadding
        height: root.height
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        horizontalAlignment: root.horizontalAlignment
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    LazyItem {
        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        active: root.isCut
        sourceComponent: Button {
            kind: Button.Plain
            symbol: "xmark.circle.fill"
            help: "Too long to edit here. Clear it to type anew."
            tint: Theme.secondaryLabel
            onClicked: {
                root.clear();
                root.textEdited();
                root.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }

    TextEditMenuArea {
        hasSelection: root.selectedText !== ""
        readOnly: root.readOnly
        canPaste: root.canPaste
        onCut: root.cut()
        onCopied: root.copy()
        onPasted: root.paste()
        onAllSelected: root.selectAll()
    }

    background: FieldBackground {
        visible: root.bordered
        focused: root.activeFocus
    }
}
