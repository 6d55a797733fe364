pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Where a search looks, as a row of small capsules beneath a SearchField.
//   ScopeBar { options: [PickerOption { text: "This Brand" }, …]; currentIndex: …; onActivated: index => … }
Row {
    id: root

    property list<PickerOption> options
    property int currentIndex: 0

    signal activated(index: int)

    spacing: 4
    Accessible.role: Accessible.Grouping
    Accessible.name: "Search in"

    Repeater {
        model: root.options
        delegate: Button {
            id: scope

            required property PickerOption modelData
            required property int index

            text: modelData.text
            kind: Button.Borderless
            controlSize: ControlSize.Small
            checked: index === root.currentIndex
            tint: checked ? Theme.label : Theme.secondaryLabel
            Accessible.role: Accessible.RadioButton
            Accessible.checked: checked
            Accessible.checkable: true
            onClicked: if (index !== root.currentIndex) root.activated(index)
        }
    }
}
