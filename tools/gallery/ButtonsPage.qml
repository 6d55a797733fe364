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
        Button { text: "50 %"; controlSize: ControlSize.Small; anchors.verticalCenter: parent.verticalCenter }
        Button { text: "Choose Image…"; anchors.verticalCenter: parent.verticalCenter }
        Button { text: "Create your first brand"; symbol: "plus"; kind: Button.Prominent; controlSize: ControlSize.Large }
    }
    Specimen {
        title: "Borderless and plain"
        Button { text: "New Brand"; symbol: "plus"; kind: Button.Borderless; tint: Theme.secondaryLabel }
        Button { symbol: "gearshape"; help: "Menu Bar settings"; kind: Button.Borderless }
        Button { symbol: "clock.arrow.circlepath"; help: "Version history"; kind: Button.Borderless; down: true }
        Button { text: "Copy CSS"; kind: Button.Plain; tint: Theme.accentText; font: Theme.font(11, Font.Medium); anchors.verticalCenter: parent.verticalCenter }
    }
    Specimen {
        title: "Focus"
        Button { id: focused; text: "Save"; kind: Button.Prominent; Component.onCompleted: forceActiveFocus(Qt.TabFocusReason) }
    }
    Specimen {
        title: "Text fields"
        TextField { placeholderText: "Brand name" }
        TextField { text: "Juniper & Salt" }
        TextField { text: "Disabled"; enabled: false; width: 90 }
        TextField { text: "W"; controlSize: ControlSize.Small; width: 70 }
        TextField { bordered: false; text: "Borderless"; font: Theme.title3 }
    }
    Specimen {
        title: "Segmented picker"
        SegmentedPicker {
            currentIndex: 0
            onActivated: index => currentIndex = index
            options: [
                PickerOption { text: "Symbol" },
                PickerOption { text: "Emoji" },
                PickerOption { text: "Color" },
                PickerOption { text: "Image" }
            ]
        }
        SegmentedPicker {
            currentIndex: 1
            onActivated: index => currentIndex = index
            options: [
                PickerOption { symbol: "square.grid.3x3.fill"; help: "small" },
                PickerOption { symbol: "square.grid.2x2.fill"; help: "medium" },
                PickerOption { symbol: "square.fill"; help: "large" }
            ]
        }
    }
}
