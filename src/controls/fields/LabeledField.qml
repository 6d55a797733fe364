pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A control behind its label, for short forms in sheets; labels of one width line up.
//   LabeledField { label: "Name"; TextField { width: parent.width … } }
Item {
    id: root

    required property string label
    property int labelWidth: 64
    default property alias content: holder.data

    implicitWidth: 320
    implicitHeight: holder.height

    Label {
        width: root.labelWidth
        height: Math.min(28, root.height)
        text: root.label
        color: Theme.secondaryLabel
        verticalAlignment: Text.AlignVCenter
    }

    Item {
        id: holder

        x: root.labelWidth + 8
        width: root.width - x
        height: childrenRect.height
    }
}
