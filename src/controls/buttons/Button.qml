pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A push button with a text, a symbol or both.
//   Button { text: "Create"; kind: Button.Prominent; onClicked: … }
//   Button { symbol: "trash"; help: "Delete"; kind: Button.Borderless; destructive: true }
// Tab reaches it, Space and Return press it; a click leaves the focus where it was. Its name for
// assistive technology is `accessibleName`, else its text, else its help.
T.Button {
    id: root

    enum Kind {
        Bordered,
        Prominent, // filled with the accent: the one action of its place
        Borderless, // a fill only under the pointer
        Plain // no fill and no padding
    }

    property int kind: Button.Bordered
    property int controlSize: ControlSize.Regular
    property bool destructive: false
    property string symbol: ""
    property real symbolSize: root.font.pixelSize
    property string help: "" // a tool tip
    property string accessibleName: text || help
    // Of text and symbol.
    property color tint: filled ? (!enabled ? Theme.tertiaryLabel : destructive ? Theme.onDestructive : Theme.onAccent)
                                : destructive ? Theme.destructive : Theme.label

    readonly property bool filled: kind === Button.Prominent
    readonly property bool bare: kind === Button.Plain
    readonly property int sidePadding: kind === Button.Borderless ? 8 : controlSize === ControlSize.Small ? 9
                                     : controlSize === ControlSize.Large ? 18 : 13
    readonly property bool symbolOnly: text === "" && symbol !== ""

    implicitWidth: Math.max(implicitContentWidth + leftPadding + rightPadding,
                            symbolOnly && !bare ? implicitHeight : 0)
    implicitHeight: bare ? implicitContentHeight : Theme.controlHeight(controlSize)
    padding: 0
    leftPadding: bare ? 0 : symbolOnly ? 5 : sidePadding
    rightPadding: leftPadding
    spacing: 6
    font: Theme.font(Theme.controlText(controlSize), filled ? Font.Medium : Font.Normal)
    focusPolicy: Qt.TabFocus
    opacity: enabled || filled ? 1 : 0.4 // a filled one turns grey, since paled its text can't be read

    function press() {
        if (checkable)
            toggle();
        clicked();
    }

    Keys.onReturnPressed: press()
    Keys.onEnterPressed: press()

    Accessible.role: checkable ? Accessible.CheckBox : Accessible.Button
    Accessible.name: accessibleName
    Accessible.description: text !== "" ? help : ""
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: press()

    contentItem: ButtonContent {
        text: root.text
        symbol: root.symbol
        symbolSize: root.symbolSize
        font: root.font
        color: root.tint
        spacing: root.spacing
        opacity: root.bare && root.down ? 0.6 : 1
    }

    background: ButtonBackground {
        control: root
        kind: root.bare ? ButtonBackground.Empty : root.kind === Button.Borderless ? ButtonBackground.Faint
              : !root.filled ? ButtonBackground.Framed : root.destructive ? ButtonBackground.Destructive : ButtonBackground.Accent
        radius: Theme.controlRadius(root.controlSize)
    }

    LazyItem {
        anchors.fill: parent
        active: root.help !== "" && (root.hovered || root.visualFocus) || item !== null // from the first time on
        sourceComponent: Help {
            text: root.help
            shown: (root.hovered || root.symbolOnly && root.visualFocus) && !root.down
        }
    }
}
