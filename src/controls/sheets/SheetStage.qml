pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Where a window's sheets are shown: makes the view of the one in front, and takes it away again.
//   SheetStage { host: window.sheets }
Item {
    id: root

    required property SheetHost host

    property Sheet shown: null
    property SheetModel model: null // of the one that is shown

    // Another one waits until the one that is up has closed.
    function follow() {
        if (host.current === model)
            return;
        if (shown)
            shown.close();
        else if (host.current)
            show(host.current);
    }

    function show(wanted: SheetModel) {
        const component = Qt.createComponent(wanted.view);
        if (component.status !== Component.Ready) {
            console.warn(component.errorString());
            return;
        }
        model = wanted;
        shown = component.createObject(root, {model: wanted}) as Sheet;
        shown.open();
    }

    Component.onCompleted: follow()

    Connections {
        target: root.shown

        function onClosed() {
            const ended = root.model;
            root.shown.destroy();
            root.shown = null;
            root.model = null;
            root.host.closed(ended);
            root.follow();
        }
    }

    Connections {
        target: root.host

        function onCurrentChanged() {
            root.follow();
        }

        function onClosing() {
            root.shown?.close();
        }
    }
}
