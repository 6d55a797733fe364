pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Shell

// What the window tells and asks when something has failed.
Item {
    id: root

    required property Alerts alerts

    Timer {
        id: next

        interval: 0
        onTriggered: notices.opened?.open()
    }

    LazySheet {
        id: notices

        active: root.alerts.noticeTitle !== ""

        ConfirmationDialog {
            title: root.alerts.noticeTitle
            message: root.alerts.noticeMessage
            cancelText: ""
            onClosed: {
                root.alerts.dismissNotice();
                if (title !== "")
                    next.restart(); // behind this closing
            }
        }
    }

    LazySheet {
        active: root.alerts.trashQuestion === Alerts.TrashQuestion.refused

        ConfirmationDialog {
            title: root.alerts.trashTitle
            message: root.alerts.trashMessage
            confirmText: "Delete Immediately…"
            destructive: true
            onConfirmed: root.alerts.askDeleteImmediately()
            onDismissed: root.alerts.keepBrand()
        }
    }

    LazySheet {
        active: root.alerts.trashQuestion === Alerts.TrashQuestion.immediately

        ConfirmationDialog {
            title: root.alerts.trashTitle
            message: root.alerts.trashMessage
            confirmText: "Delete"
            destructive: true
            cancelIsDefault: true
            onConfirmed: root.alerts.deleteImmediately()
            onDismissed: root.alerts.keepBrand()
        }
    }

    LazySheet {
        active: root.alerts.askingToQuit

        ConfirmationDialog {
            title: root.alerts.quitTitle
            message: root.alerts.quitMessage
            alternativeText: "Try Again"
            confirmText: "Quit Anyway"
            destructive: true
            cancelIsDefault: true
            onConfirmed: root.alerts.quitAnyway()
            onAlternativeChosen: {
                root.alerts.stay();
                root.alerts.retrySave();
            }
            onDismissed: root.alerts.stay()
        }
    }
}
