pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Colours"

    Grid {
        columns: 6
        columnSpacing: 8
        rowSpacing: 10

        ColorChip { name: "windowBackground"; color: Theme.windowBackground }
        ColorChip { name: "sidebarBackground"; color: Theme.sidebarBackground }
        ColorChip { name: "controlBackground"; color: Theme.controlBackground }
        ColorChip { name: "textBackground"; color: Theme.textBackground }
        ColorChip { name: "sheetBackground"; color: Theme.sheetBackground }
        ColorChip { name: "menuBackground"; color: Theme.menuBackground }
        ColorChip { name: "thinMaterial"; color: Theme.thinMaterial }
        ColorChip { name: "regularMaterial"; color: Theme.regularMaterial }
        ColorChip { name: "thickMaterial"; color: Theme.thickMaterial }
        ColorChip { name: "hoverFill"; color: Theme.hoverFill }
        ColorChip { name: "pressedFill"; color: Theme.pressedFill }
        ColorChip { name: "separator"; color: Theme.separator }
        ColorChip { name: "accent"; color: Theme.accent }
        ColorChip { name: "accentFill"; color: Theme.accentFill }
        ColorChip { name: "accentText"; color: Theme.accentText }
        ColorChip { name: "focusRing"; color: Theme.focusRing }
        ColorChip { name: "textSelection"; color: Theme.textSelection }
        ColorChip { name: "destructive"; color: Theme.destructive }
        ColorChip { name: "destructiveFill"; color: Theme.destructiveFill }
        ColorChip { name: "positive"; color: Theme.positive }
        ColorChip { name: "warning"; color: Theme.warning }
        ColorChip { name: "warningFill"; color: Theme.warningFill }
        ColorChip { name: "informative"; color: Theme.informative }
    }
}
