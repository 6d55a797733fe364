pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Fields"

    Specimen {
        title: "Empty, filled, disabled, small, borderless"
        TextField { placeholderText: "Brand name" }
        TextField { text: "Juniper & Salt"; accessibleName: "Brand name" }
        TextField { text: "Disabled"; accessibleName: "Disabled"; enabled: false; width: 90 }
        TextField { text: "1024"; accessibleName: "Width"; controlSize: ControlSize.Small; width: 70; horizontalAlignment: TextInput.AlignRight }
        TextField { bordered: false; placeholderText: "Section name"; font: Theme.font(15, Font.DemiBold) }
    }
    Specimen {
        title: "Search"
        SearchField { placeholderText: "Search Acme" }
        SearchField { text: "logo"; accessibleName: "Search" }
        ScopeBar {
            onActivated: index => currentIndex = index
            options: [
                PickerOption { text: "This Brand" },
                PickerOption { text: "All Brands" }
            ]
        }
    }
    Specimen {
        title: "Several lines"
        TextEditor { width: 300; height: 96; font: Theme.monospaced(12); text: "func tint() -> Color {\n    Color(hex: \"#4C6FFF\")\n}\n\n// one\n// two\n// three"; accessibleName: "Snippet" }
        TextArea { width: 240; accessibleName: "Text"; whole: "Use the full-colour mark on light grounds. On photographs the reversed one reads better."; color: Theme.secondaryLabel }
    }
    Specimen {
        title: "Focus"
        TextField {
            text: "Hero"
            accessibleName: "Name"
            width: 120
            Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)
        }
    }
    Specimen {
        title: "Colour wells"
        ColorWell { accessibleName: "Color"; color: "#4c6fff"; onPicked: color => this.color = color }
        ColorWell { accessibleName: "Color"; color: "#ffffff"; onPicked: color => this.color = color }
        ColorWell { accessibleName: "Color"; color: "#e5484d"; enabled: false }
    }
    Specimen {
        title: "Colour panel"
        ColorPanel { color: "#2f9e77"; canSample: true; onPicked: color => this.color = color }
    }
}
