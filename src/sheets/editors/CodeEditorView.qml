pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

FocusScope {
    id: root

    required property CodeEditor editor

    implicitHeight: column.height

    Column {
        id: column

        width: parent.width
        spacing: 10

        LabeledField {
            width: parent.width
            label: "Language"

            TextField {
                id: language

                width: parent.width
                focus: true
                placeholderText: "e.g. swift"
                accessibleName: "Language"
                text: root.editor.language
                onTextEdited: root.editor.language = text
            }
        }

        LabeledField {
            width: parent.width
            label: "Name"

            TextField {
                width: parent.width
                placeholderText: "Optional"
                accessibleName: "Name"
                text: root.editor.name
                onTextEdited: root.editor.name = text
            }
        }

        Label {
            text: "Snippet"
            color: Theme.secondaryLabel
        }

        TextEditor {
            width: parent.width
            height: 180
            font: Theme.monospaced(12)
            wrapMode: TextEdit.NoWrap
            tabInserts: true
            accessibleName: "Snippet"
            text: root.editor.snippet
            onEdited: text => root.editor.snippet = text
        }
    }

    Component.onCompleted: language.selectAll()
}
