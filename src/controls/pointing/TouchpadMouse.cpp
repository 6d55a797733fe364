#include "controls/pointing/TouchpadMouse.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickWindow>

namespace tarnloft {

bool TouchpadMouse::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: break;
    default: return false;
  }
  auto* const told = static_cast<QMouseEvent*>(event);
  const bool isTouchpad = told->deviceType() == QInputDevice::DeviceType::TouchPad;
  if (!isTouchpad || !qobject_cast<QQuickWindow*>(watched)) return false;
  QMouseEvent meant(told->type(), told->position(), told->scenePosition(), told->globalPosition(),
                    told->button(), told->buttons(), told->modifiers(), told->source(), &mouse_);
  meant.setTimestamp(told->timestamp());
  QCoreApplication::sendEvent(watched, &meant);
  told->setAccepted(meant.isAccepted());
  return true;
}

}  // namespace tarnloft
