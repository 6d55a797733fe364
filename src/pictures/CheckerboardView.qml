pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Controls

// The cells behind a picture that has transparent parts, as large as its card.
Checkerboard {
    cell: 8
    radius: Theme.cardRadius
}
