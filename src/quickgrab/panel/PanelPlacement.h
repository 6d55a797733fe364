#pragma once

#include <QPoint>
#include <QRect>

namespace tarnloft {

// Where the panel's upper left goes: centred below what it belongs to, or above where that is low
// on the screen, and inside of it as far as it fits. All in points of the desktop.
QPoint panelPlace(const QRect& anchor, QSize panel, const QRect& screen);

}  // namespace tarnloft
