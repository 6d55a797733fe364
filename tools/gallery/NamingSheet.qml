pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Sheet {
    id: root

    accessibleName: "New Brand"
    defaultButton: form.createButton
    cancelButton: form.cancelButton

    NamingForm {
        id: form

        onFinished: root.close()
    }
}
