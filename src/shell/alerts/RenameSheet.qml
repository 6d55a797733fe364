pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Asks for another name of what has one already.
NameSheet {
    signal save(name: string)

    prompt: "Name"
    confirmText: "Save"
    onConfirmed: name => save(name)
}
