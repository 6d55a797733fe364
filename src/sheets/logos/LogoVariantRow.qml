pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Sheets

// One file of a logo set: its picture, which can be dragged out, what it is for, and its backdrop.
FocusScope {
    id: root

    required property LogoSetSheet sheet
    required property int index
    required property string name
    required property string path
    required property int purpose
    required property int backdrop

    implicitHeight: 58

    MiniThumb {
        id: thumb

        anchors.verticalCenter: parent.verticalCenter
        width: 66
        height: 50
        thumbnails: root.sheet.thumbnails
        path: root.path
        backdrop: root.backdrop
        Accessible.role: Accessible.Graphic
        Accessible.name: root.name
        Accessible.description: "Drag to use this file"

        HoverHandler {
            id: hover

            cursorShape: Qt.OpenHandCursor
        }

        DragOutHandler {
            id: drag

            view: thumb
            radius: thumb.radius
            onCarried: grabbed => root.sheet.drag(root.index, thumb, grabbed, thumb.radius)
        }

        Help {
            text: "Drag to use this file"
            shown: hover.hovered && !drag.active
        }
    }

    Label {
        id: title

        anchors.left: thumb.right
        anchors.leftMargin: 12
        anchors.right: remove.left
        anchors.rightMargin: 8
        y: 4
        text: root.name
        font: Theme.font(13, Font.Medium)
        elide: Text.ElideMiddle
        horizontalAlignment: Text.AlignLeft
    }

    PopUpPicker {
        id: role

        anchors.left: title.left
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 4
        width: 148
        controlSize: ControlSize.Small
        accessibleName: "Role"
        currentIndex: root.purpose
        texts: root.sheet.roles
        onActivated: index => root.sheet.setRole(root.index, index)
    }

    PopUpPicker {
        anchors.left: role.right
        anchors.leftMargin: 8
        anchors.bottom: role.bottom
        width: 128
        controlSize: ControlSize.Small
        accessibleName: "Backdrop"
        currentIndex: root.backdrop
        options: [
            PickerOption { text: "Default bg" },
            PickerOption { text: "White" },
            PickerOption { text: "Dark" },
            PickerOption { text: "Checkerboard" }
        ]
        onActivated: index => root.sheet.setBackdrop(root.index, index)
    }

    Button {
        id: remove

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        symbol: "trash"
        help: "Remove Variant"
        kind: Button.Borderless
        destructive: true
        onClicked: root.sheet.remove(root.index)
    }
}
