#include "workspace/flow/LiveTiles.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickWindow>

#include <algorithm>
#include <utility>

namespace tarnloft {

namespace {

// It may be in the middle of a call.
void end(LiveTile& live) {
  live.view->setVisible(false);
  live.view->deleteLater();
}

}  // namespace

bool LiveTile::isHeld() const {
  return tile->isDragged() || tile->isMenuOpen() || view->hasActiveFocus();
}

void LiveTile::fadeIn() {
  isLeaving = false;
  fade.aim({opaque, 0});
}

void LiveTile::fadeOut() {
  isLeaving = true;
  fade.aim({0, 0});
}

// At once.
void LiveTile::show(double opacity) {
  isLeaving = false;
  fade.settle({opacity, 0});
  view->setOpacity(opacity / opaque);
}

LiveTile* LiveTiles::find(const QUuid& id) const {
  const auto found = live_.find(id);
  return found == live_.end() ? nullptr : found->second.get();
}

LiveTile* LiveTiles::follow(const Item& item) {
  const auto entry = live_.find(item.id);
  if (entry == live_.end()) return nullptr;
  LiveTile* const live = entry->second.get();
  if (live->tile->kind() != TileFacts::kind(item)) {
    end(*live);
    live_.erase(entry);
    return nullptr;
  }
  live->tile->setItem(item);
  return live;
}

LiveTile* LiveTiles::obtain(SectionModel& section, const Item& item, QQmlComponent& component,
                            const QSizeF& size) {
  if (LiveTile* live = find(item.id)) return live;
  auto live = takeWaiting(TileFacts::kind(item));
  if (live) {
    live->tile->setItem(item);
    live->view->setVisible(true);
  } else {
    live = make(section, item, component, size);
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
                                          QQmlComponent& component, const QSizeF& size) {
  auto live = std::make_unique<LiveTile>();
  QObject* const object = component.beginCreate(component.creationContext());
  live->view = qobject_cast<QQuickItem*>(object);
  if (!live->view) {
    qWarning("%s", qPrintable(component.errorString()));
    delete object;
    return nullptr;
  }
  QQmlEngine::setObjectOwnership(live->view, QQmlEngine::CppOwnership);
  live->tile = new Tile(section, item);
  live->tile->setParent(live->view);
  live->view->setParent(&parent_);
  live->view->setParentItem(&parent_);
  live->view->setSize(size);  // before its content is made, which then needs no second layout
  component.setInitialProperties(live->view,
                                 {{QStringLiteral("tile"), QVariant::fromValue(live->tile)}});
  component.completeCreate();
  ++made_;
  return live;
}

LiveTiles::Map::iterator LiveTiles::release(Map::iterator entry) {
  auto live = std::move(entry->second);
  entry = live_.erase(entry);
  if (TileFacts::isBlock(live->tile->item())) {  // its editor keeps what it knows of its text
    end(*live);
    return entry;
  }
  live->view->setVisible(false);
  live->index = -1;
  live->isPlaced = false;
  live->motion.settle(live->motion.target());
  live->show(LiveTile::opaque);
  waiting_.push_back(std::move(live));
  return entry;
}

void LiveTiles::trim(size_t most) {
  while (waiting_.size() > most) {
    end(*waiting_.front());
    waiting_.erase(waiting_.begin());
  }
}

void LiveTiles::clear() {
  forEach([](LiveTile& live) { end(live); });
  live_.clear();
  trim(0);
}

int LiveTiles::count() const { return int(live_.size() + waiting_.size()); }

}  // namespace tarnloft
