pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// One choice of a SegmentedPicker or ScopeBar, which draws what lies beneath it.
T.RadioButton {
    id: root

    required property PickerOption modelData
    required property int index
    readonly property string help: modelData.help // which goes before those who show it
    property bool chosen: false
    property int controlSize: ControlSize.Regular

    implicitWidth: Math.max(implicitContentWidth + 2 * (controlSize === ControlSize.Small ? 8 : 12), modelData.text === "" ? 34 : 0)
    padding: 0
    font: Theme.font(Theme.controlText(controlSize), chosen ? Font.Medium : Font.Normal)
    checkable: false // the picker knows which is chosen
    focusPolicy: Qt.NoFocus

    Accessible.role: Accessible.RadioButton
    Accessible.name: modelData.text || modelData.help
    Accessible.checkable: true
    Accessible.checked: chosen
    Accessible.onPressAction: clicked()

    contentItem: ButtonContent {
        text: root.modelData.text
        symbol: root.modelData.symbol
        symbolSize: 13
        font: root.font
        color: root.chosen || root.hovered ? Theme.label : Theme.secondaryLabel
    }

    LazyItem {
        anchors.fill: parent
        active: root.hovered || item !== null // from the first time on
        sourceComponent: Help {
            text: root.help
            shown: root.hovered && !root.down
        }
    }
}
