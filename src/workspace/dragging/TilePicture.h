#pragma once

#include <QImage>

class QQuickItem;

namespace tarnloft {

// What is carried beside the pointer for an item of a window: what was grabbed of it, in the
// screen's pixels, at six tenths of its size, on the window's ground, with corners of that radius
// in points at full size. Nothing of it but its corners is translucent. Null for an item without a
// window.
QImage carriedPicture(const QImage& grabbed, const QQuickItem& item, qreal radius);

}  // namespace tarnloft
