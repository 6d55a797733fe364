pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// Text of several lines that grows with what it holds, without a frame; TextEditor has one.
//   TextArea { placeholderText: "Text"; whole: …; onEdited: text => … }
// Tab leaves it unless `tabInserts`. `edited` tells of the user's changes alone. A right click offers
// cut, copy and paste. Of a long text one part is laid out, and there is a pager under it.
T.TextArea {
    id: root

    property string accessibleName: placeholderText
    property bool tabInserts: false
    property alias whole: parts.text
    readonly property int pagerHeight: parts.count > 1 ? 32 : 0

    signal edited(text: string)

    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(contentHeight, prompt.implicitHeight) + topPadding + bottomPadding
    padding: 0
    bottomPadding: padding + pagerHeight
    text: parts.part
    font: Theme.body
    color: Theme.label
    placeholderTextColor: Theme.placeholder
    selectionColor: Theme.textSelection
    selectedTextColor: Theme.label
    wrapMode: TextEdit.Wrap
    textFormat: TextEdit.PlainText
    selectByMouse: true
    opacity: enabled ? 1 : 0.45

    onTextChanged: if (activeFocus) parts.edit(text)

    Keys.onTabPressed: event => {
        event.accepted = !tabInserts;
        if (!tabInserts)
            nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason);
    }
    Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

    Accessible.role: Accessible.EditableText
    Accessible.name: accessibleName
    Accessible.multiLine: true

    cursorDelegate: TextCursor {
        field: root
    }

    Label {
        id: prompt

        x: root.leftPadding
        y: root.topPadding
        width: root.width - root.leftPadding - root.rightPadding
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        font: root.font
        color: root.placeholderTextColor
        Accessible.ignored: true
    }

    LongText {
        id: parts

        onEdited: text => root.edited(text)
        onPartChanged: root.cursorPosition = 0
    }

    LazyItem {
        x: root.leftPadding - 6
        y: root.height - height
        active: root.pagerHeight > 0
        sourceComponent: PartPager {
            parts: parts
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
}
