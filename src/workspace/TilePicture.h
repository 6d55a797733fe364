#pragma once

#include <QImage>

class QQuickItem;

namespace tarnloft {

// What an item of a window shows, as a picture in the screen's pixels to carry under the pointer.
// Null for an item without a window. Takes as long as drawing the window does.
QImage pictureOf(const QQuickItem& item);

}  // namespace tarnloft
