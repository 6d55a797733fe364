pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Pictures

// What a file tells of itself, in one line.
Label {
    id: root

    required property AssetSpecs specs
    required property string path
    property int kind: AssetSpecs.Image

    height: 14
    text: loader.line
    font: Theme.subheadline
    color: Theme.secondaryLabel
    horizontalAlignment: Text.AlignLeft

    AssetSpecLoader {
        id: loader

        specs: root.specs
        path: root.path
        kind: root.kind
    }
}
