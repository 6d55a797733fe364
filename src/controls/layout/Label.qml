pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Text of the interface: one line in body type and the primary colour unless told otherwise.
//   Label { text: qsTr("Brands"); font: Theme.headline; color: Theme.secondaryLabel }
Text {
    font: Theme.body
    color: Theme.label
    elide: Text.ElideRight
    textFormat: Text.PlainText

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
