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

    ScrollArea {
        anchors.fill: parent

        Column {
            id: pages

            width: parent.width
            padding: 32
            spacing: 36

            TypePage {}
            ColorsPage {}
            ButtonsPage {}
            FieldsPage {}
            PickersPage {}
            MenusPage { still: root.whole }
            PanelsPage { still: root.whole }
            ListsPage {}
            TilesPage {}
        }
    }

    Button {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 20
        visible: !root.whole
        text: Theme.dark ? "Light" : "Dark"
        symbol: Theme.dark ? "sun.max.fill" : "moon.fill"
        onClicked: Theme.dark = !Theme.dark
    }
}
