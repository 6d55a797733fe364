pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The brand's name, which becomes a field by a double click, or by Return or F2 with the focus on
// it. Return and a click elsewhere store what was typed, Esc doesn't.
FocusScope {
    id: root

    required property string name
    required property string wholeName // which is too long to show, if it is another
    readonly property font titleFont: Theme.font(26, Font.Bold)

    signal renamed(name: string)

    property bool editing: false

    function beginEditing() {
        editing = true;
        field.item?.forceActiveFocus(Qt.OtherFocusReason);
    }

    function endEditing(name: string) {
        if (!editing)
            return;
        const kept = field.item?.activeFocus ?? false;
        editing = false;
        if (kept)
            rest.forceActiveFocus(Qt.OtherFocusReason);
        if (name !== "")
            renamed(name);
    }

    Accessible.role: Accessible.Heading
    Accessible.name: name

    implicitWidth: label.implicitWidth + 8 + mark.width
    implicitHeight: label.implicitHeight

    HoverHandler {
        id: hovering
    }

    FocusScope {
        id: rest

        width: parent.width
        height: parent.height
        visible: !root.editing
        focus: true
        activeFocusOnTab: true

        Keys.onReturnPressed: root.beginEditing()
        Keys.onEnterPressed: root.beginEditing()
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_F2;
            if (event.accepted)
                root.beginEditing();
        }

        Accessible.role: Accessible.Button
        Accessible.name: "Rename “" + root.name + "”"
        Accessible.onPressAction: root.beginEditing()

        Label {
            id: label

            width: parent.width - 8 - mark.width
            text: root.name
            horizontalAlignment: Text.AlignLeft // of a right-to-left one too
            font: root.titleFont
            Accessible.ignored: true
        }

        Symbol {
            id: mark

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "pencil"
            size: 18
            color: Theme.secondaryLabel
            opacity: hovering.hovered || rest.activeFocus && FocusOrigin.keyboard ? 1 : 0
        }

        FocusRing {
            anchors.margins: -5
            shown: rest.activeFocus && FocusOrigin.keyboard
            base: 6
        }

        PlainTap {
            onDoubleClicked: root.beginEditing()
        }
    }

    LazyItem {
        id: field

        anchors.fill: parent
        active: root.editing
        sourceComponent: TextField {
            bordered: false
            placeholderText: "Brand name"
            text: root.wholeName
            font: root.titleFont
            horizontalAlignment: TextInput.AlignLeft
            focus: true

            readonly property string typedName: isCut ? "" : text

            Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape // not the page's
            Keys.onReturnPressed: root.endEditing(typedName)
            Keys.onEnterPressed: root.endEditing(typedName)
            Keys.onEscapePressed: root.endEditing("")
            onActiveFocusChanged: if (!activeFocus && Window.active) root.endEditing(typedName)
            Component.onCompleted: selectAll()
        }
    }
}
