pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Shell

MenuCommands {
    id: root

    required property ContentModel content
    readonly property ViewChoices view: content.view

    component Mode: ShellCommand {
        required property int mode

        checkable: true
        checked: root.view.assetDisplayMode === mode
        onActivated: root.view.assetDisplayMode = mode
    }

    component Size: ShellCommand {
        required property int size

        enabled: root.view.sizesCount
        checkable: true
        checked: root.view.tileSize === size
        onActivated: root.view.tileSize = size
    }

    component Look: ShellCommand {
        required property int look

        checkable: true
        checked: root.view.appearanceMode === look
        onActivated: root.view.appearanceMode = look
    }

    title: "View"

    MenuGroup { title: "Asset View" }
    Mode { text: "Compact"; mode: 0 }
    Mode { text: "Expanded"; mode: 1 }
    MenuGroup { title: "Tile Size" }
    Size { text: "Small"; size: 0 }
    Size { text: "Medium"; size: 1 }
    Size { text: "Large"; size: 2 }
    MenuGroup { title: "Theme" }
    Look { text: "System"; look: 0 }
    Look { text: "Light"; look: 1 }
    Look { text: "Dark"; look: 2 }
    MenuGroup {}
    ShellCommand {
        text: "Version History…"
        enabled: root.content.detail === ContentModel.Detail.Brand
        onActivated: root.content.showVersions()
    }
}
