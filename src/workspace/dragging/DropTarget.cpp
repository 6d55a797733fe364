#include "workspace/dragging/DropTarget.h"

#include "assets/ItemDrag.h"
#include "workspace/BrandWorkspace.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

DropTarget::DropTarget(QQuickItem* parent) : QQuickItem(parent) { setFlag(ItemAcceptsDrops); }

bool DropTarget::takes(const QMimeData& data) const {
  if (!section_) return false;
  const BrandWorkspace& workspace = *section_->workspace();
  if (tile_) return workspace.offers(data, ItemDrag::type);
  const QStringList types{ItemDrag::type, DropType::fileURL, DropType::image};
  return std::any_of(types.begin(), types.end(),
                     [&](const QString& type) { return workspace.offers(data, type); });
}

// What is dropped stays where it came from, so every drop is a copy to its source.
void DropTarget::dragEnterEvent(QDragEnterEvent* event) {
  const bool isTaken = event->mimeData() && takes(*event->mimeData());
  setTargeted(isTaken);
  if (isTaken) event->setDropAction(Qt::CopyAction);
  event->setAccepted(isTaken);
}

void DropTarget::dragMoveEvent(QDragMoveEvent* event) {
  if (isTargeted_) event->setDropAction(Qt::CopyAction);
  event->setAccepted(isTargeted_);
}

void DropTarget::dragLeaveEvent(QDragLeaveEvent* event) {
  setTargeted(false);
  event->accept();
}

void DropTarget::dropEvent(QDropEvent* event) {
  const bool isTaken = std::exchange(isTargeted_, false) && event->mimeData();
  emit targetedChanged();
  event->setAccepted(false);
  if (!isTaken) return;
  BrandWorkspace& workspace = *section_->workspace();
  const bool done = tile_
                        ? workspace.dropBefore(*event->mimeData(), section_->id(), tile_->item().id)
                        : workspace.drop(*event->mimeData(), section_->id());
  if (done) event->setDropAction(Qt::CopyAction);
  event->setAccepted(done);
}

void DropTarget::setTargeted(bool targeted) {
  if (std::exchange(isTargeted_, targeted) != targeted) emit targetedChanged();
}

}  // namespace tarnloft
