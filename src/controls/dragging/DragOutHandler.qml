pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// Drags something out of the item that it stands in: `carried` comes with a picture of `view`, for
// `carryOut`, while the button is down.
DragHandler {
    id: root

    required property Item view
    property real radius: 0 // of the picture's corners

    signal carried(grabbed: var)

    // The picture is there a frame later, when the button may be up again.
    function start() {
        if (!view.Window.window)
            return; // it was taken away under the press
        const ratio = view.Screen.devicePixelRatio;
        const size = Qt.size(Math.round(view.width * ratio), Math.round(view.height * ratio));
        view.grabToImage(result => {
            if (active)
                carried(result.image);
        }, size);
    }

    target: null
    onGrabChanged: (transition, point) => {
        if (transition === PointerDevice.GrabPassive) // of a press, which never becomes a drag if it is for a popup
            dragThreshold = PopupCover.covers(parent, point.scenePosition) ? 32000 : undefined;
    }
    onActiveChanged: if (active) start()
}
