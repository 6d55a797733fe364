#include "controls/menus/MenuPress.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

namespace tarnloft {

void MenuPress::begin(const QQuickItem* item) {
  end();
  window_ = item ? item->window() : nullptr;
  if (!window_ || QGuiApplication::mouseButtons() == Qt::NoButton) return;
  window_->installEventFilter(this);
  since_.start();
  from_ = QCursor::pos();
}

void MenuPress::end() {
  if (window_) window_->removeEventFilter(this);
}

bool MenuPress::eventFilter(QObject* /*watched*/, QEvent* event) {
  const bool isMove = event->type() == QEvent::MouseMove;
  if (!isMove && event->type() != QEvent::MouseButtonRelease) return false;
  auto* const told = static_cast<QMouseEvent*>(event);
  if (isMove && told->buttons() != Qt::NoButton) {
    told->setExclusiveGrabber(told->points().constFirst(), nullptr);  // each mouse has its own
    return false;
  }
  end();
  if (isMove) return false;      // the desktop kept the release
  constexpr int shortest = 250;  // ms; a quick click that slips chooses nothing
  const bool isPulled = (told->globalPosition() - from_).manhattanLength() >
                        QGuiApplication::styleHints()->startDragDistance();
  if (isPulled && since_.elapsed() >= shortest) emit released(told->scenePosition());
  return false;
}

}  // namespace tarnloft
