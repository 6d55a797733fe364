#include "workspace/dragging/DragWatch.h"

#include <QCoreApplication>

#include <utility>

namespace tarnloft {

void DragWatch::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change != ItemSceneChange) return;
  if (watched_) watched_->removeEventFilter(this);
  end();
  watched_ = data.window;
  if (watched_) watched_->installEventFilter(this);
}

bool DragWatch::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: follow(*static_cast<QDropEvent*>(event)); break;
    case QEvent::DragLeave:
    case QEvent::Drop: end(); break;
    default: break;
  }
  return QQuickItem::eventFilter(watched, event);
}

void DragWatch::repeatSoon() {
  if (!last_ || std::exchange(isRepeatDue_, true)) return;
  QMetaObject::invokeMethod(this, &DragWatch::repeat, Qt::QueuedConnection);
}

void DragWatch::repeat() {
  isRepeatDue_ = false;
  if (!last_ || !watched_) return;
  QDragMoveEvent move(last_->position().toPoint(), last_->possibleActions(), last_->mimeData(),
                      last_->buttons(), last_->modifiers());
  QCoreApplication::sendEvent(watched_, &move);
}

void DragWatch::follow(const QDropEvent& event) {
  last_ = std::make_unique<QDropEvent>(event.position(), event.possibleActions(), event.mimeData(),
                                       event.buttons(), event.modifiers());
  const QPointF here = mapFromScene(event.position());
  setHoverY(contains(here) ? here.y() : -1);
}

void DragWatch::end() {
  last_.reset();
  setHoverY(-1);
}

void DragWatch::setHoverY(qreal y) {
  if (std::exchange(hoverY_, y) != y) emit hoverYChanged();
}

}  // namespace tarnloft
