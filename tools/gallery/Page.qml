pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A group of specimens under a title.
Column {
    id: root

    required property string title
    default property alias specimens: flow.data

    width: 1096
    spacing: 14

    Label {
        text: root.title
        font: Theme.title2
    }

    Divider {
        width: parent.width
    }

    Flow {
        id: flow

        width: parent.width
        spacing: 28
    }
}
