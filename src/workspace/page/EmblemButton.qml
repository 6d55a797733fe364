pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls
import TarnLoft.Pictures

// A section's mark, which is a button that changes it.
T.Button {
    id: root

    required property emblemLook look
    required property Thumbnails thumbnails

    implicitWidth: 30
    implicitHeight: 30
    padding: 4
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.role: Accessible.Button
    Accessible.name: "Section Icon"
    Accessible.onPressAction: clicked()

    contentItem: EmblemView {
        look: root.look
        thumbnails: root.thumbnails
        size: 22
    }

    background: RoundedRectangle {
        radius: 8
        color: Theme.thin(Theme.primary, root.down ? 0.12 : root.hovered ? 0.06 : 0)

        FocusRing {
            shown: root.visualFocus
            base: 8
        }
    }

    Help {
        text: "Section Icon"
        shown: (root.hovered || root.visualFocus) && !root.down
    }
}
