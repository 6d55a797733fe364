pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A framed field of several lines that scrolls, for code and long texts.
//   TextEditor { text: …; font: Theme.monospaced(12); accessibleName: "Snippet"; onEdited: text => … }
FocusScope {
    id: root

    property alias text: area.whole
    property alias font: area.font
    property alias placeholderText: area.placeholderText
    property alias accessibleName: area.accessibleName
    property alias tabInserts: area.tabInserts
    property alias wrapMode: area.wrapMode
    property int padding: 6

    signal edited(text: string)

    implicitWidth: 240
    implicitHeight: 140

    FieldBackground {
        anchors.fill: parent
        focused: area.activeFocus
    }

    ScrollArea {
        anchors.fill: parent
        anchors.margins: 1
        contentWidth: area.wrapMode === TextEdit.NoWrap ? area.width : width

        T.TextArea.flickable: area
    }

    TextArea {
        id: area

        focus: true
        padding: root.padding
        onEdited: text => root.edited(text)
    }
}
