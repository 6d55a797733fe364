pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Sheets

// A picture of the user's.
Column {
    id: root

    required property EmblemPicker picker

    topPadding: 20
    bottomPadding: 20
    spacing: 12

    Button {
        anchors.horizontalCenter: parent.horizontalCenter
        symbol: "photo"
        text: "Choose Image…"
        onClicked: root.picker.chooseImage()
    }

    Label {
        width: parent.width
        text: root.picker.hasImage ? "Image set — shown cropped to a circle." : "Pick an image; it will be cropped to a circle."
        font: Theme.subheadline
        color: Theme.secondaryLabel
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
