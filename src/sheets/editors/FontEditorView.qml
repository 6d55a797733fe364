pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

FocusScope {
    id: root

    required property FontEditor editor

    implicitHeight: column.height

    Column {
        id: column

        width: parent.width
        spacing: 10

        LabeledField {
            width: parent.width
            label: "Family"

            SuggestingField {
                id: family

                width: parent.width
                focus: true
                placeholderText: "Font family"
                accessibleName: "Family"
                text: root.editor.family
                onWanted: beginning => suggestions = root.editor.families(beginning)
                drawn: true
                onEdited: text => root.editor.family = text
            }
        }

        LabeledField {
            width: parent.width
            label: "Weight"

            TextField {
                width: parent.width
                placeholderText: "e.g. Bold"
                accessibleName: "Weight"
                text: root.editor.weight
                onTextEdited: root.editor.weight = text
            }
        }

        LabeledField {
            width: parent.width
            label: "Sample"

            TextField {
                width: parent.width
                placeholderText: "Sample text"
                accessibleName: "Sample"
                text: root.editor.sample
                onTextEdited: root.editor.sample = text
            }
        }

        Item {
            width: parent.width
            height: 48
            clip: true

            Label {
                width: parent.width
                height: parent.height
                text: root.editor.sample || "The quick brown fox"
                font.family: root.editor.family
                font.pixelSize: 28
                verticalAlignment: Text.AlignVCenter
                elide: Text.ElideRight
            }
        }
    }

    Component.onCompleted: family.selectAll()
}
