pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A sheet that is made and opened when it is asked for, and gone when it isn't any more.
//   LazySheet { active: model.asking; RenameSheet { … onClosed: model.end() } }
Item {
    id: root

    required property bool active
    default required property Component sheet

    property Sheet opened: null

    function follow() {
        if (active && !opened) {
            opened = sheet.createObject(root) as Sheet;
            opened.open();
        } else if (!active && opened) {
            opened.close(); // it may still be up
            opened.destroy(1000);
            opened = null;
        }
    }

    onActiveChanged: follow()
    Component.onCompleted: follow()
}
