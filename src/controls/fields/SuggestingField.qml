pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import TarnLoft.Controls

// A field that offers what its text may become, in a list below it. Down goes into the list, Return
// takes what is marked, Esc closes the list alone.
//   SuggestingField { text: …; onEdited: text => …; onWanted: beginning => suggestions = … }
TextField {
    id: root

    property list<string> suggestions
    property bool drawn: false // each is a font's family, of which a sample is shown
    readonly property int most: 8 // that are seen at once

    signal edited(text: string)
    signal wanted(beginning: string)

    function offer() {
        wanted(text);
        list.currentIndex = -1;
        if (text !== "" && suggestions.length > 0 && suggestions[0] !== text)
            offers.open();
        else
            offers.close();
    }

    function take(other: string) {
        text = other;
        edited(other);
        offers.close();
    }

    onTextEdited: {
        edited(text);
        offer();
    }
    onActiveFocusChanged: if (!activeFocus) offers.close()

    Keys.priority: Keys.BeforeItem
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Down && !offers.visible)
            offer();
        else if (event.key === Qt.Key_Down && offers.visible)
            list.currentIndex = Math.min(list.currentIndex + 1, list.count - 1);
        else if (event.key === Qt.Key_Up && offers.visible)
            list.currentIndex = Math.max(list.currentIndex - 1, -1);
        else if ((event.key === Qt.Key_Return || event.key === Qt.Key_Enter) && offers.visible && list.currentIndex >= 0)
            take(suggestions[list.currentIndex]);
        else if (event.key === Qt.Key_Escape && offers.visible)
            offers.close();
        else
            event.accepted = false;
    }

    T.Popup {
        id: offers

        y: root.height + 4
        width: root.width
        height: Math.min(list.count, root.most) * 26 + 2 * padding
        padding: 4
        margins: 6
        closePolicy: T.Popup.CloseOnPressOutsideParent

        ListView {
            id: list

            width: offers.availableWidth
            height: offers.availableHeight
            model: root.suggestions
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ScrollBar {}
            delegate: T.ItemDelegate {
                id: offered

                required property int index
                required property string modelData

                width: list.width
                height: 26
                focusPolicy: Qt.NoFocus
                highlighted: list.currentIndex === index || hovered
                hoverEnabled: true
                Accessible.role: Accessible.ListItem
                Accessible.name: modelData
                onClicked: root.take(modelData)

                contentItem: Item {
                    Label {
                        x: 4
                        width: parent.width - x - (root.drawn ? 50 : 4)
                        height: parent.height
                        text: offered.modelData
                        color: offered.highlighted ? Theme.onAccent : Theme.label
                        horizontalAlignment: Text.AlignLeft
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideRight
                        Accessible.ignored: true
                    }

                    Label {
                        anchors.right: parent.right
                        anchors.rightMargin: 6
                        width: 40
                        height: parent.height
                        visible: root.drawn
                        text: "Ag"
                        font.family: root.drawn ? offered.modelData : Theme.body.family
                        font.pixelSize: 15
                        color: offered.highlighted ? Theme.onAccent : Theme.secondaryLabel
                        horizontalAlignment: Text.AlignRight
                        verticalAlignment: Text.AlignVCenter
                        Accessible.ignored: true
                    }
                }

                background: RoundedRectangle {
                    radius: 5
                    color: offered.highlighted ? Theme.accentFill : "transparent"
                }
            }
        }

        background: PanelBackground {
            color: Theme.menuBackground
            radius: 8
        }
    }
}
