pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A choice of one of several, shown in a menu over the button.
//   PopUpPicker { options: [PickerOption { text: "HEX" }, …]; currentIndex: …; onActivated: index => … }
// Space, Return, Up and Down open it. `activated` tells of the user's choices only.
MenuOpener {
    id: root

    property list<PickerOption> options
    property var texts: [] // instead of options, where each is a text alone
    property int currentIndex: 0
    readonly property PickerOption current: currentIndex >= 0 && currentIndex < options.length ? options[currentIndex] : null

    readonly property string text: currentIndex >= 0 && currentIndex < texts.length ? texts[currentIndex] : current?.text ?? ""

    signal activated(index: int)

    // Of its menu's entries, with their marks.
    readonly property real widest: {
        let most = 0;
        for (let i = 0; i < Math.max(texts.length, options.length); ++i) {
            const symbol = options[i]?.symbol ? 22 : 0;
            most = Math.max(most, metrics.advanceWidth(options[i]?.text ?? texts[i] ?? "") + symbol);
        }
        return Math.ceil(most) + 38;
    }

    FontMetrics {
        id: metrics

        font: Theme.body
    }

    function openMenu() {
        if (!menu)
            menu = making.createObject(root) as Menu;
        if (!open)
            menu.popup(root, -24, (height - 25) / 2 - menu.topPadding - 25 * Math.max(0, currentIndex), menu.itemAt(currentIndex) as T.MenuItem);
    }

    role: Accessible.ComboBox
    open: menu?.opened ?? false
    implicitWidth: Math.min(widest, 240) + 14
    implicitHeight: Theme.controlHeight(controlSize)
    onMenuRequested: openMenu()
    Keys.onUpPressed: openMenu()
    Accessible.name: accessibleName && text ? accessibleName + ", " + text : accessibleName || text

    T.Button {
        id: face

        anchors.fill: parent
        leftPadding: 10
        rightPadding: 26
        topPadding: 0
        bottomPadding: 0
        font: Theme.font(Theme.controlText(root.controlSize))
        focusPolicy: Qt.NoFocus
        opacity: enabled ? 1 : 0.4
        down: pressed || root.open
        onClicked: root.openMenu()
        Accessible.ignored: true

        contentItem: ButtonContent {
            leading: true
            text: root.text
            symbol: root.current?.symbol ?? ""
            font: face.font
        }

        background: ButtonBackground {
            control: face
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
    }

    LazyItem {
        anchors.fill: parent
        active: root.help !== "" && face.hovered || item !== null // from the first time on
        sourceComponent: Help {
            text: root.help
            shown: face.hovered && !face.down
        }
    }

    property Menu menu: null // made at its first opening
    readonly property Component making: Component {
        Menu {
            title: root.accessibleName
            least: root.width + 14

            Repeater {
                model: root.texts.length > 0 ? root.texts.length : root.options.length
                delegate: MenuItem {
                    required property int index
                    readonly property PickerOption option: root.options[index] ?? null // it may go first

                    text: option?.text ?? root.texts[index] ?? ""
                    symbol: option?.symbol ?? ""
                    checkable: true
                    checked: index === root.currentIndex
                    onTriggered: if (index !== root.currentIndex) root.activated(index)
                }
            }
        }
    }
}
