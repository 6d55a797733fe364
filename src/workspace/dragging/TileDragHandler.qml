pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Workspace

// Drags a tile or a row of text out of the item that it stands in, under a picture of `view`.
DragHandler {
    id: root

    required property Tile tile
    required property Item view
    property real radius: 0 // of the picture's corners

    // Not by another button, which the toolkit takes too from a mouse reported as a touchpad.
    readonly property bool carries: active && Number(centroid.pressedButtons) <= Qt.LeftButton

    // The picture is there a frame later, when the button may be up again.
    function start() {
        const ratio = view.Screen.devicePixelRatio;
        const size = Qt.size(Math.round(view.width * ratio), Math.round(view.height * ratio));
        view.grabToImage(result => {
            if (carries)
                tile.drag(view, result.image, radius);
        }, size);
    }

    target: null
    onCarriesChanged: if (carries) start()
}
