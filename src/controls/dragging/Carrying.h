#pragma once

#include "platform/DragSession.h"

#include <QImage>

#include <functional>

class QQuickItem;

namespace tarnloft {

// Drags something out of a view through `drag(look)`, which returns when the drag has ended: whole
// turns of the event loop later. Beside the pointer is carried what was grabbed of the view, in the
// screen's pixels, made smaller, on the window's ground, with corners of that radius in points at
// full size. Main thread.
void carryOut(QQuickItem& view, const QImage& grabbed, qreal radius,
              const std::function<void(const DragLook& look)>& drag);

}  // namespace tarnloft
