#include "controls/menus/MenuPress.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>
#include <QTimer>

namespace tarnloft {

void MenuPress::begin(const QQuickItem* item) {
  if (window_) window_->removeEventFilter(this);
  window_ = item ? item->window() : nullptr;
  if (!window_ || QGuiApplication::mouseButtons() == Qt::NoButton) return;
  window_->installEventFilter(this);
  since_.start();
  from_ = QCursor::pos();
  QTimer::singleShot(0, this, &MenuPress::takePointer);  // behind the press, which gives it away
}

void MenuPress::takePointer() {
  if (QQuickItem* const holder = window_ ? window_->mouseGrabberItem() : nullptr)
    holder->ungrabMouse();
}

bool MenuPress::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonRelease) return false;
  watched->removeEventFilter(this);
  constexpr int shortest = 250;  // ms; a quick click that slips chooses nothing
  const auto* const told = static_cast<QMouseEvent*>(event);
  const bool isPulled = (told->globalPosition() - from_).manhattanLength() >
                        QGuiApplication::styleHints()->startDragDistance();
  if (isPulled && since_.elapsed() >= shortest) emit released(told->scenePosition());
  return false;
}

}  // namespace tarnloft
