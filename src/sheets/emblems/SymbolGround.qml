pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// What is behind a symbol of a board.
RoundedRectangle {
    required property rect cell // on the board

    x: cell.x + 2
    y: cell.y + 2
    width: cell.width - 4
    height: cell.height - 4
    radius: 8
}
