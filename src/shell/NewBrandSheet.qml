pragma ComponentBehavior: Bound

import QtQuick

// Asks for a new brand's name.
NameSheet {
    signal create(name: string)

    title: "New Brand"
    prompt: "Brand name"
    confirmText: "Create"
    onConfirmed: name => create(name)
}
