pragma ComponentBehavior: Bound

import QtQuick

// Drags something out of the item that it stands in: `carried` comes with a picture of `view`, for
// `carryOut`, while the button is down.
DragHandler {
    id: root

    required property Item view
    property real radius: 0 // of the picture's corners

    signal carried(grabbed: var)

    // Not by another button, which the toolkit takes too from a mouse reported as a touchpad.
    readonly property bool carries: active && Number(centroid.pressedButtons) <= Qt.LeftButton

    // The picture is there a frame later, when the button may be up again.
    function start() {
        const ratio = view.Screen.devicePixelRatio;
        const size = Qt.size(Math.round(view.width * ratio), Math.round(view.height * ratio));
        view.grabToImage(result => {
            if (carries)
                carried(result.image);
        }, size);
    }

    target: null
    onCarriesChanged: if (carries) start()
}
