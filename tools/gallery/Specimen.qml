pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Controls in a row with what they show written above.
Column {
    id: root

    required property string title
    default property alias controls: row.data
    property alias gap: row.spacing

    spacing: 8

    Label {
        text: root.title
        font: Theme.subheadline
        color: Theme.secondaryLabel
    }

    Row {
        id: row

        spacing: 10

        Component.onCompleted: {
            for (let i = 0; i < children.length; ++i) {
                const child = children[i];
                child.y = Qt.binding(() => Math.round((row.height - child.height) / 2));
            }
        }
    }
}
