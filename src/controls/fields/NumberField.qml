pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// A field for a whole number. Up and Down step it, by ten with Shift.
//   NumberField { accessibleName: "Width"; least: 1; value: …; onEdited: value => … }
// `edited` comes at each change by the user that is a number, made at least `least`.
TextField {
    id: root

    required property int value
    property int least: 0
    property int most: 99999

    signal edited(value: int)

    function bounded(number: int): int {
        return Math.max(least, Math.min(most, number));
    }

    function step(by: int) {
        edited(bounded(value + by));
        selectAll();
    }

    // What is typed stays while it says the same.
    function follow() {
        if (!activeFocus || bounded(parseInt(text) || 0) !== value)
            text = value;
    }

    implicitWidth: 70
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: Qt.ImhDigitsOnly
    validator: IntValidator {
        bottom: 0
        top: root.most
    }

    onValueChanged: follow()
    onActiveFocusChanged: follow()
    Component.onCompleted: follow()
    onTextEdited: {
        const typed = parseInt(text);
        if (!isNaN(typed))
            edited(bounded(typed));
    }
    Keys.onUpPressed: event => step(event.modifiers & Qt.ShiftModifier ? 10 : 1)
    Keys.onDownPressed: event => step(event.modifiers & Qt.ShiftModifier ? -10 : -1)
}
