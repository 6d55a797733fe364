pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// How many pixels wide and high the picture becomes.
FocusScope {
    id: root

    required property ExportImageSheet sheet

    implicitWidth: row.width
    implicitHeight: row.height

    Row {
        id: row

        spacing: 8

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "W"
            color: Theme.secondaryLabel
        }

        NumberField {
            focus: true
            accessibleName: "Width"
            least: 1
            value: root.sheet.width
            onEdited: value => root.sheet.width = value
            Component.onCompleted: selectAll()
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "×"
            color: Theme.secondaryLabel
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "H"
            color: Theme.secondaryLabel
        }

        NumberField {
            accessibleName: "Height"
            least: 1
            value: root.sheet.height
            onEdited: value => root.sheet.height = value
        }

        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "px"
            color: Theme.secondaryLabel
        }

        Button {
            anchors.verticalCenter: parent.verticalCenter
            symbol: root.sheet.lockAspect ? "lock.fill" : "lock.open"
            help: "Lock aspect ratio"
            kind: Button.Borderless
            checkable: true
            checked: root.sheet.lockAspect
            onClicked: root.sheet.lockAspect = checked
        }
    }
}
