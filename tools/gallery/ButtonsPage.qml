pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Buttons"

    Specimen {
        title: "Prominent: rest, pressed, disabled"
        Button { text: "Create"; kind: Button.Prominent }
        Button { text: "Create"; kind: Button.Prominent; down: true }
        Button { text: "Create"; kind: Button.Prominent; enabled: false }
    }
    Specimen {
        title: "Bordered: rest, pressed, checked, disabled"
        Button { text: "Cancel" }
        Button { text: "Cancel"; down: true }
        Button { text: "Cancel"; checkable: true; checked: true }
        Button { text: "Cancel"; enabled: false }
    }
    Specimen {
        title: "Destructive"
        Button { text: "Move to Trash"; kind: Button.Prominent; destructive: true }
        Button { text: "Delete"; destructive: true }
        Button { text: "Delete"; kind: Button.Borderless; destructive: true }
        Button { symbol: "trash"; help: "Delete"; kind: Button.Borderless; destructive: true }
    }
    Specimen {
        title: "Small, regular, large"
        Button { text: "50 %"; controlSize: ControlSize.Small }
        Button { text: "Choose Image…" }
        Button { text: "Create your first brand"; symbol: "plus"; kind: Button.Prominent; controlSize: ControlSize.Large }
    }
    Specimen {
        title: "Borderless and plain"
        Button { text: "New Brand"; symbol: "plus"; kind: Button.Borderless; tint: Theme.secondaryLabel }
        Button { symbol: "gearshape"; help: "Menu Bar settings"; kind: Button.Borderless }
        Button { symbol: "macwindow"; help: "Open Tarn Loft"; kind: Button.Borderless }
        Button { symbol: "clock.arrow.circlepath"; help: "Version history"; kind: Button.Borderless; down: true }
        Button { text: "Copy CSS"; kind: Button.Plain; tint: Theme.accentText; font: Theme.font(11, Font.Medium) }
    }
    Specimen {
        title: "Menu buttons"
        MenuButton { text: "Move to…"; menu: Menu { MenuItem { text: "Logos" } } }
        MenuButton { text: "Add Rule"; symbol: "plus"; menu: Menu { MenuItem { text: "Do" } } }
        MenuButton { symbol: "plus"; help: "Add content to this section"; kind: Button.Borderless; menu: Menu { MenuItem { text: "Color" } } }
        MenuButton { symbol: "ellipsis.circle"; help: "Section options"; kind: Button.Borderless; menu: Menu { MenuItem { text: "Set Icon…" } } }
    }
    Specimen {
        title: "Keyboard focus"
        gap: 14
        Focused { radius: 6; gap: 1; Button { text: "Cancel" } }
        Focused { radius: 6; gap: 1; Button { text: "Save"; kind: Button.Prominent } }
        Focused { radius: 6; gap: 1; Button { symbol: "gearshape"; help: "Settings"; kind: Button.Borderless } }
    }
}
