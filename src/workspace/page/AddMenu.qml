pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls
import TarnLoft.Workspace

// What can be added to a section.
Menu {
    id: root

    required property SectionModel section

    title: "Add content to this section"

    MenuItem { text: "Header"; onTriggered: root.section.addHeader() }
    MenuItem { text: "Text"; onTriggered: root.section.addText() }
    MenuSeparator {}
    MenuItem { text: "Color"; onAfterClosing: root.section.addColor() }
    MenuItem { text: "Pick Color from Screen…"; onTriggered: root.section.pickColorFromScreen() }
    MenuItem { text: "Gradient"; onAfterClosing: root.section.addGradient() }
    MenuItem { text: "Font (by name)"; onAfterClosing: root.section.addFont() }
    MenuItem { text: "Code Snippet"; onAfterClosing: root.section.addCode() }
    MenuSeparator {}
    MenuItem { text: "Image…"; onAfterClosing: root.section.importImages() }
    MenuItem { text: "Logo Set…"; onTriggered: root.section.addLogoSet() }
    MenuItem { text: "Video…"; onAfterClosing: root.section.importVideos() }
    MenuItem { text: "Import Font File…"; onAfterClosing: root.section.importFontFiles() }
}
