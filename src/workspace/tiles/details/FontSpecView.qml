pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures
import TarnLoft.Workspace

// A line of a typeface, and what there is to tell of its file.
Column {
    id: root

    required property FontFacet face
    required property AssetSpecs specs

    spacing: 2

    Text {
        width: parent.width
        height: 24
        text: "Aa Bb Cc  0123456789"
        font.family: root.face.family
        font.pixelSize: 17
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        color: Theme.label
        textFormat: Text.PlainText
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        Accessible.ignored: true
    }

    LazyItem {
        width: parent.width
        height: 14
        sourceComponent: root.face.hasFile ? file : none
    }

    Component {
        id: file

        AssetSpecView {
            specs: root.specs
            path: root.face.path
            kind: AssetSpecs.File
        }
    }

    Component {
        id: none

        Label {
            text: "Name only — no file attached"
            font: Theme.subheadline
            color: Theme.secondaryLabel
            horizontalAlignment: Text.AlignLeft
        }
    }
}
