pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Asks for a new brand's name.
NameSheet {
    signal create(name: string)

    title: "New Brand"
    prompt: "Brand name"
    confirmText: "Create"
    onConfirmed: name => create(name)
}
