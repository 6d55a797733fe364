pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Choices"

    Specimen {
        title: "Segmented pickers"
        SegmentedPicker {
            accessibleName: "Kind"
            onActivated: index => currentIndex = index
            options: [
                PickerOption { text: "Symbol" },
                PickerOption { text: "Emoji" },
                PickerOption { text: "Color" },
                PickerOption { text: "Image" }
            ]
        }
        SegmentedPicker {
            accessibleName: "Tile size"
            currentIndex: 1
            onActivated: index => currentIndex = index
            options: [
                PickerOption { symbol: "square.grid.3x3.fill"; help: "small" },
                PickerOption { symbol: "square.grid.2x2.fill"; help: "medium" },
                PickerOption { symbol: "square.fill"; help: "large" }
            ]
        }
        SegmentedPicker {
            accessibleName: "Format"
            controlSize: ControlSize.Small
            currentIndex: 2
            onActivated: index => currentIndex = index
            options: [
                PickerOption { text: "PNG" },
                PickerOption { text: "JPEG" },
                PickerOption { text: "HEIC" },
                PickerOption { text: "TIFF" }
            ]
        }
        SegmentedPicker {
            accessibleName: "Disabled"
            enabled: false
            options: [
                PickerOption { text: "Off" },
                PickerOption { text: "On" }
            ]
        }
    }
    Specimen {
        title: "Pop-up pickers"
        PopUpPicker {
            accessibleName: "Click a color to copy"
            onActivated: index => currentIndex = index
            options: [
                PickerOption { text: "HEX" },
                PickerOption { text: "HEX (lowercase)" },
                PickerOption { text: "RGB" }
            ]
        }
        PopUpPicker {
            accessibleName: "Kind of rule"
            width: 110
            controlSize: ControlSize.Small
            onActivated: index => currentIndex = index
            options: [
                PickerOption { text: "Do"; symbol: "checkmark.circle.fill" },
                PickerOption { text: "Don't"; symbol: "xmark.octagon.fill" },
                PickerOption { text: "Note"; symbol: "info.circle.fill" }
            ]
        }
        PopUpPicker {
            accessibleName: "Disabled"
            enabled: false
            options: [
                PickerOption { text: "System" }
            ]
        }
    }
    Specimen {
        title: "Switches"
        Switch { accessibleName: "On"; checked: true }
        Switch { accessibleName: "Off" }
        Switch { accessibleName: "Disabled"; checked: true; enabled: false }
        Switch { text: "Background color"; checked: true }
        Focused { radius: 10; gap: 1; Switch { accessibleName: "Focus"; checked: true } }
    }
    Specimen {
        title: "Check boxes"
        gap: 16
        CheckBox { text: "Colors"; checked: true }
        CheckBox { text: "Type" }
        CheckBox { text: "Code"; checked: true; enabled: false }
        SelectionMark { selected: true }
        SelectionMark {}
    }
    Specimen {
        title: "Sliders"
        gap: 18
        Slider { accessibleName: "Quality"; value: 0.6 }
        Slider { accessibleName: "Angle"; value: 0; width: 90 }
        Slider { accessibleName: "Disabled"; value: 0.3; enabled: false; width: 90 }
    }
}
