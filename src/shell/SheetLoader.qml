pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A sheet that is made when it is shown and gone when it has closed.
//   SheetLoader { shown: model.asking; sheet: RenameSheet { … onClosed: model.end() } }
Loader {
    id: root

    required property bool shown
    required property Component sheet

    active: shown
    sourceComponent: sheet
    onLoaded: (item as Sheet).open()
}
