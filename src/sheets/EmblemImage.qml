pragma ComponentBehavior: Bound

import QtQuick
import TarnLoft.Sheets

// The picture of an emblem, cut to a circle; nothing until it is there.
ThumbnailView {
    fillMode: ThumbnailView.Fill
    radius: width / 2
    maxPixel: 128
}
