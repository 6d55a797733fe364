pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// Edits a colour, a gradient, a font or a piece of code.
Sheet {
    id: root

    required property ItemEditorSheet model

    accessibleName: model.title
    defaultButton: done

    Column {
        id: content

        width: Math.min(340, root.room)
        spacing: 16

        SheetHead {
            width: parent.width
            title: root.model.title
        }

        LazyItem {
            width: parent.width
            sourceComponent: root.model.color ? color : root.model.gradient ? gradient : root.model.font ? font : root.model.code ? code : null
        }

        Button {
            id: done

            anchors.right: parent.right
            text: "Done"
            kind: Button.Prominent
            onClicked: root.close()
        }
    }

    Component {
        id: color

        ColorEditorView {
            focus: true
            editor: root.model.color
            swatches: root.model.swatches
        }
    }

    Component {
        id: gradient

        GradientEditorView {
            focus: true
            editor: root.model.gradient
            swatches: root.model.swatches
        }
    }

    Component {
        id: font

        FontEditorView {
            focus: true
            editor: root.model.font
        }
    }

    Component {
        id: code

        CodeEditorView {
            focus: true
            editor: root.model.code
        }
    }
}
