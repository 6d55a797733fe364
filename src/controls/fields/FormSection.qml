pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A titled group of FormRow on one ground, with notes beneath.
//   FormSection { title: "Appearance"; note: "…"; FormRow { … } FormRow { … } }
Column {
    id: root

    property string title: ""
    property string note: ""
    default property alias rows: column.data

    spacing: 7
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Label {
        leftPadding: 10
        visible: text !== ""
        text: root.title
        font: Theme.headline
    }

    RoundedRectangle {
        width: parent.width
        height: column.height
        radius: Theme.cardRadius
        color: Theme.dark ? Theme.thin(Theme.primary, 0.045) : Theme.controlBackground
        edgeWidth: 1
        edgeColor: Theme.hairline

        Column {
            id: column

            width: parent.width
        }
    }

    Label {
        leftPadding: 10
        rightPadding: 10
        width: parent.width
        visible: text !== ""
        text: root.note
        font: Theme.subheadline
        color: Theme.secondaryLabel
        wrapMode: Text.Wrap
        lineHeight: 1.15
    }
}
