#include "workspace/LiveTiles.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

namespace tarnloft {

// Both may be in the middle of a call.
LiveTile::~LiveTile() {
  if (view) {
    view->setVisible(false);
    view->deleteLater();
    if (tile) tile.release()->setParent(view);
  }
}

bool LiveTile::isHeld() const { return tile->isDragged() || view->hasActiveFocus(); }

LiveTile* LiveTiles::find(const QUuid& id) const {
  const auto found = live_.find(id);
  return found == live_.end() ? nullptr : found->second.get();
}

LiveTile* LiveTiles::obtain(SectionModel& section, const Item& item, QQmlComponent& component) {
  if (LiveTile* live = find(item.id)) return live;
  auto live = takeWaiting(TileFacts::kind(item));
  if (live) {
    live->tile->setItem(item);
    live->view->setVisible(true);
  } else {
    live = make(section, item, component);
    if (!live) return nullptr;
  }
  return live_.emplace(item.id, std::move(live)).first->second.get();
}

std::unique_ptr<LiveTile> LiveTiles::takeWaiting(TileKind::Kind kind) {
  const auto found = std::find_if(waiting_.rbegin(), waiting_.rend(),
                                  [&](const auto& live) { return live->tile->kind() == kind; });
  if (found == waiting_.rend()) return nullptr;
  auto live = std::move(*found);
  waiting_.erase(std::next(found).base());
  return live;
}

std::unique_ptr<LiveTile> LiveTiles::make(SectionModel& section, const Item& item,
                                          QQmlComponent& component) {
  auto live = std::make_unique<LiveTile>();
  live->tile = std::make_unique<Tile>(section, item);
  QQmlEngine::setObjectOwnership(live->tile.get(), QQmlEngine::CppOwnership);
  QObject* const object = component.beginCreate(component.creationContext());
  live->view = qobject_cast<QQuickItem*>(object);
  if (!live->view) {
    qWarning("%s", qPrintable(component.errorString()));
    delete object;
    return nullptr;
  }
  QQmlEngine::setObjectOwnership(live->view, QQmlEngine::CppOwnership);
  live->view->setParentItem(&parent_);
  component.setInitialProperties(live->view,
                                 {{QStringLiteral("tile"), QVariant::fromValue(live->tile.get())}});
  component.completeCreate();
  ++made_;
  return live;
}

LiveTiles::Map::iterator LiveTiles::release(Map::iterator entry) {
  auto live = std::move(entry->second);
  live->view->setVisible(false);
  live->index = -1;
  live->isPlaced = false;
  live->motion.settle(live->motion.target());
  waiting_.push_back(std::move(live));
  return live_.erase(entry);
}

void LiveTiles::trim(size_t most) {
  if (waiting_.size() <= most) return;
  waiting_.erase(waiting_.begin(), waiting_.end() - std::ptrdiff_t(most));
}

void LiveTiles::clear() {
  live_.clear();
  waiting_.clear();
}

int LiveTiles::count() const { return int(live_.size() + waiting_.size()); }

}  // namespace tarnloft
