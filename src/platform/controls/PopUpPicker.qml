pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A choice of one of several, shown in a menu over the button.
//   PopUpPicker { options: [PickerOption { text: "HEX" }, …]; currentIndex: …; onActivated: index => … }
// Space, Return, Up and Down open it. `activated` tells of the user's choices only.
T.Button {
    id: root

    property list<PickerOption> options
    property int currentIndex: 0
    property int controlSize: ControlSize.Regular
    property string accessibleName: ""
    property string help: ""
    readonly property PickerOption current: currentIndex >= 0 && currentIndex < options.length ? options[currentIndex] : null

    signal activated(index: int)

    function openMenu() {
        if (!menu.visible)
            menu.popup(root, -24, (height - 25) / 2 - menu.topPadding - 25 * Math.max(0, currentIndex), menu.itemAt(currentIndex) as T.MenuItem);
    }

    implicitWidth: Math.min(menu.natural, 240) + 14
    implicitHeight: Theme.controlHeight(controlSize)
    leftPadding: 10
    rightPadding: 26
    topPadding: 0
    bottomPadding: 0
    font: Theme.font(Theme.controlText(controlSize))
    focusPolicy: Qt.TabFocus
    opacity: enabled ? 1 : 0.4
    onClicked: openMenu()

    Keys.onReturnPressed: openMenu()
    Keys.onEnterPressed: openMenu()
    Keys.onUpPressed: openMenu()
    Keys.onDownPressed: openMenu()
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName !== "" ? accessibleName + ", " + text : text
    Accessible.description: help
    Accessible.onPressAction: openMenu()
    text: current?.text ?? ""

    contentItem: ButtonContent {
        leading: true
        text: root.text
        symbol: root.current?.symbol ?? ""
        font: root.font
    }

    background: ButtonBackground {
        control: root
        kind: ButtonBackground.Framed
        radius: Theme.controlRadius(root.controlSize)

        Symbol {
            anchors.right: parent.right
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.up.chevron.down"
            size: 11
            weight: Font.DemiBold
            color: Theme.secondaryLabel
        }
    }

    Help {
        text: root.help
        shown: root.hovered && !root.down && !menu.visible
    }

    Menu {
        id: menu

        title: root.accessibleName
        least: root.width + 14

        Repeater {
            model: root.options
            delegate: MenuItem {
                required property PickerOption modelData
                required property int index

                text: modelData.text
                symbol: modelData.symbol
                checkable: true
                checked: index === root.currentIndex
                onTriggered: if (index !== root.currentIndex) root.activated(index)
            }
        }
    }
}
