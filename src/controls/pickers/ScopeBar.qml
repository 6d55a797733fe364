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
        delegate: Segment {
            id: scope

            chosen: index === root.currentIndex
            controlSize: ControlSize.Small
            implicitHeight: 22
            focusPolicy: Qt.TabFocus
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: if (!chosen) root.activated(index)

            background: ButtonBackground {
                control: scope
                kind: ButtonBackground.Faint
                on: scope.chosen
                radius: 5
            }
        }
    }
}
