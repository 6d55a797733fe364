pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// The toast, and the window's sheets and questions.
Item {
    id: root

    required property ContentModel content

    LazyItem {
        anchors.fill: parent
        active: root.content.toast !== "" || item !== null // from the first one on
        sourceComponent: Item {
            ToastView {
                message: root.content.toast
            }
        }
    }

    SheetStage {
        host: root.content.sheets
    }
}
