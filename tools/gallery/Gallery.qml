pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Window {
    id: root

    required property bool whole // as high as all of it, for a picture

    width: 1160
    height: whole ? pages.height : 820
    visible: true
    color: Theme.windowBackground
    title: "Tarn Loft controls"

    Flickable {
        anchors.fill: parent
        contentHeight: pages.height

        Column {
            id: pages

            width: parent.width
            padding: 32
            spacing: 36

            ButtonsPage {}
            MenusPage {}
        }
    }
}
