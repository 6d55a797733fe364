pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Window {
    id: root

    required property bool whole // as high as all of it, for a picture
    required property string only // the title of the one page to show, or empty

    function shows(page: Page): bool {
        return only === "" || page.title === only;
    }

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

            TypePage { visible: root.shows(this) }
            ColorsPage { visible: root.shows(this) }
            ButtonsPage { visible: root.shows(this) }
            FieldsPage { visible: root.shows(this) }
            PickersPage { visible: root.shows(this) }
            MenusPage { visible: root.shows(this); still: root.whole && root.shows(this) }
            PanelsPage { visible: root.shows(this); still: root.whole && root.shows(this) }
            ListsPage { visible: root.shows(this) }
            TilesPage { visible: root.shows(this) }
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
