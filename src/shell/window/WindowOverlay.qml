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
                bottomDistance: root.content.work.text !== "" ? 84 : 24
            }
        }
    }

    LazyItem {
        anchors.fill: parent
        active: root.content.work.text !== "" || item !== null // from the first one on
        sourceComponent: Item {
            WorkLineView {
                work: root.content.work
            }
        }
    }

    SheetStage {
        host: root.content.sheets
    }
}
