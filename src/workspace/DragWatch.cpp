#include "workspace/DragWatch.h"

#include <QDropEvent>

#include <utility>

namespace tarnloft {

void DragWatch::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change != ItemSceneChange) return;
  if (watched_) watched_->removeEventFilter(this);
  watched_ = data.window;
  if (watched_) watched_->installEventFilter(this);
}

bool DragWatch::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove: hover(static_cast<QDropEvent*>(event)->position()); break;
    case QEvent::DragLeave:
    case QEvent::Drop: setHoverY(-1); break;
    default: break;
  }
  return QQuickItem::eventFilter(watched, event);
}

void DragWatch::hover(const QPointF& scenePosition) {
  const QPointF here = mapFromScene(scenePosition);
  setHoverY(contains(here) ? here.y() : -1);
}

void DragWatch::setHoverY(qreal y) {
  if (std::exchange(hoverY_, y) != y) emit hoverYChanged();
}

}  // namespace tarnloft
