#include "controls/dragging/DropReceiver.h"

#include <utility>

namespace tarnloft {

DropReceiver::DropReceiver(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemAcceptsDrops); }

void DropReceiver::dragEnterEvent(QDragEnterEvent* event) {
  const bool isTaken = event->mimeData() && takes(*event->mimeData());
  setTargeted(isTaken);
  if (isTaken) event->setDropAction(Qt::CopyAction);
  event->setAccepted(isTaken);
}

void DropReceiver::dragMoveEvent(QDragMoveEvent* event) {
  if (isTargeted_) event->setDropAction(Qt::CopyAction);
  event->setAccepted(isTargeted_);
}

void DropReceiver::dragLeaveEvent(QDragLeaveEvent* event) {
  setTargeted(false);
  event->accept();
}

void DropReceiver::dropEvent(QDropEvent* event) {
  const bool isTaken = std::exchange(isTargeted_, false) && event->mimeData();
  emit targetedChanged();
  event->setAccepted(false);
  if (!isTaken || !take(*event->mimeData())) return;
  event->setDropAction(Qt::CopyAction);
  event->setAccepted(true);
}

void DropReceiver::setTargeted(bool targeted) {
  if (std::exchange(isTargeted_, targeted) != targeted) emit targetedChanged();
}

}  // namespace tarnloft
