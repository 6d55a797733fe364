pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.QuickGrab

// The open brand's mark and name; a menu of all brands opens beneath them.
MenuOpener {
    id: root

    required property QuickGrab grab

    readonly property string name: grab.hasDocument ? grab.brandName : "No Brand"
    property Menu made: null

    function openMenu() {
        if (open) {
            made?.close();
            return;
        }
        if (!made)
            made = making.createObject(root) as Menu;
        made.popup(root, -4, height + 4);
    }

    role: Accessible.ButtonMenu
    open: made?.opened ?? false
    accessibleName: "Brand, " + name
    implicitWidth: 16 + 6 + label.implicitWidth + 5 + mark.width
    implicitHeight: 24
    onMenuRequested: openMenu()

    RoundedRectangle {
        anchors.fill: parent
        anchors.leftMargin: -6
        anchors.rightMargin: -6
        radius: 6
        color: root.open || tap.pressed ? Theme.pressedFill : hover.hovered ? Theme.hoverFill : "transparent"
    }

    EmblemView {
        id: emblem

        anchors.verticalCenter: parent.verticalCenter
        look: root.grab.emblem
        thumbnails: root.grab.thumbnails
        size: 16
        fallbackTint: Theme.secondaryLabel
    }

    Label {
        id: label

        x: 22
        width: Math.min(implicitWidth, root.width - x - 5 - mark.width)
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        font: Theme.font(13, Font.DemiBold)
        Accessible.ignored: true
    }

    Symbol {
        id: mark

        x: label.x + label.width + 5
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.up.chevron.down"
        size: 9
        weight: Font.DemiBold
        color: Theme.secondaryLabel
    }

    HoverHandler {
        id: hover
    }

    PlainTap {
        id: tap

        onClicked: root.openMenu()
    }

    readonly property Component making: Component {
        Menu {
            title: "Brands"
            least: 190
            closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

            MenuTitle {
                visible: root.grab.brands.length === 0
                height: visible ? implicitHeight : 0
                text: "No brands yet"
                prominent: false
            }

            Repeater {
                model: root.grab.brands
                delegate: MenuItem {
                    required property brandChoice modelData

                    text: modelData.name
                    checkable: true
                    checked: modelData.selected
                    onTriggered: root.grab.chooseBrand(modelData.packageURL)
                }
            }
        }
    }
}
