pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

Page {
    title: "Lists and forms"

    Specimen {
        title: "Split view with rows"
        RoundedRectangle {
            width: 420
            height: 270
            color: Theme.windowBackground
            edgeWidth: 1
            edgeColor: Theme.panelBorder

            SplitView {
                anchors.fill: parent
                anchors.margins: 1

                Rectangle {
                    SplitView.preferredWidth: 190
                    SplitView.minimumWidth: 120
                    color: Theme.sidebarBackground

                    Column {
                        anchors.fill: parent
                        anchors.margins: 10
                        spacing: 1

                        Label { text: "Brands"; font: Theme.font(11, Font.DemiBold); color: Theme.secondaryLabel; leftPadding: 8; bottomPadding: 4 }
                        ListRow { width: parent.width; text: "Juniper & Salt"; symbol: "leaf.fill"; selected: true }
                        ListRow { width: parent.width; text: "Acme"; symbol: "square.stack.3d.up" }
                        ListRow { width: parent.width; text: "Under the pointer"; symbol: "flame.fill"; down: true }
                        Focused { gap: -2; radius: 6; ListRow { width: 168; text: "Northwind, a very long name"; symbol: "wind" } }
                    }
                }

                Item {
                    EmptyState {
                        anchors.centerIn: parent
                        width: 200
                        symbol: "books.vertical"
                        symbolSize: 46
                        title: "No brand selected"
                        titleFont: Theme.title3
                        message: "Pick a brand from the sidebar, or create a new one."
                        Button { text: "New Brand"; symbol: "plus"; kind: Button.Prominent }
                    }
                }
            }
        }
    }
    Specimen {
        title: "Form"
        Column {
            width: 420
            spacing: 18

            FormSection {
                width: parent.width
                title: "Menu Bar"
                note: "With the Dock icon off, Tarn Loft lives only in the menu bar. Closing the window keeps it running when “Keep running” is on."

                FormRow { text: "Keep running in the menu bar"; Switch { accessibleName: "Keep running in the menu bar"; checked: true } }
                FormRow { text: "Show Dock icon"; Switch { accessibleName: "Show Dock icon" } }
                FormRow {
                    text: "Theme"
                    PopUpPicker {
                        accessibleName: "Theme"
                        options: [
                            PickerOption { text: "System" },
                            PickerOption { text: "Light" }
                        ]
                    }
                }
                FormRow { text: "Default accent color"; ColorWell { accessibleName: "Default accent color"; color: Theme.accent } }
            }
        }
    }
    Specimen {
        title: "Short form"
        Column {
            spacing: 10
            LabeledField { label: "Name"; width: 240; TextField { width: parent.width; placeholderText: "Optional" } }
            LabeledField { label: "Spot"; width: 240; TextField { width: parent.width; placeholderText: "e.g. PMS 021 C" } }
            LabeledField { label: "Angle"; width: 240; Slider { width: parent.width; accessibleName: "Angle"; value: 0.4 } }
        }
    }
}
