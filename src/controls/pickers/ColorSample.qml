pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A colour to be chosen by a click.
T.AbstractButton {
    id: root

    required property color color
    property bool chosen: false

    implicitWidth: 30
    implicitHeight: 22
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: color.toString().toUpperCase()
    Accessible.onPressAction: clicked()

    background: RoundedRectangle {
        radius: 5
        color: root.color
        edgeWidth: root.chosen ? 2 : 1
        edgeColor: root.chosen ? Theme.label : Theme.thin(Theme.primary, 0.14)
        scale: root.down ? 0.94 : 1

        FocusRing {
            shown: root.visualFocus
            base: 5
        }
    }
}
