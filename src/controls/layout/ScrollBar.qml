pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A slim bar over the content's edge: it shows while things scroll and grows under the pointer.
//   ListView { T.ScrollBar.vertical: ScrollBar {} }
T.ScrollBar {
    id: root

    readonly property bool wide: hovered || pressed
    readonly property bool flat: orientation === Qt.Horizontal

    implicitWidth: flat ? 100 : 13
    implicitHeight: flat ? 13 : 100
    padding: 3
    minimumSize: (flat ? width : height) > 0 ? Math.min(1, 28 / (flat ? width : height)) : 0
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1
    hoverEnabled: true
    Accessible.role: Accessible.ScrollBar
    Accessible.name: flat ? "Horizontal" : "Vertical"
    Accessible.focusable: false

    contentItem: Item {
        opacity: root.active || root.wide || root.policy === T.ScrollBar.AlwaysOn ? 1 : 0

        Behavior on opacity {
            SequentialAnimation {
                PauseAnimation { duration: root.active ? 0 : Motion.time(600) }
                NumberAnimation { duration: Motion.time(180) }
            }
        }

        RoundedRectangle {
            property int thickness: root.wide ? 7 : 5

            x: root.flat ? 0 : parent.width - width
            y: root.flat ? parent.height - height : 0
            width: root.flat ? parent.width : thickness
            height: root.flat ? thickness : parent.height
            radius: thickness / 2
            color: Theme.thin(Theme.primary, root.pressed ? 0.6 : root.wide ? 0.5 : 0.34)

            Behavior on thickness {
                NumberAnimation { duration: Motion.time(100) }
            }
        }
    }
}
