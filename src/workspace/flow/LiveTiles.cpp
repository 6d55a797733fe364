#include "workspace/flow/LiveTiles.h"

#include "controls/loading/ItemMaking.h"

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

// At once.
void LiveTile::show(double opacity) {
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
  auto live = takeWaiting(item);
  if (live) {
    live->tile->setItem(item);
    live->view->setVisible(true);
  } else {
    live = make(section, item, component, size);
    if (!live) return nullptr;
  }
  return live_.emplace(item.id, std::move(live)).first->second.get();
}

// Best the one that showed it, then one that nobody sees.
std::unique_ptr<LiveTile> LiveTiles::takeWaiting(const Item& item) {
  const auto fitness = [&](const LiveTile& live) {
    if (live.tile->kind() != TileFacts::kind(item)) return 0;
    return live.tile->item().id == item.id ? 3 : live.fade.isMoving() ? 1 : 2;
  };
  const auto best =
      std::max_element(waiting_.begin(), waiting_.end(),
                       [&](const auto& a, const auto& b) { return fitness(*a) < fitness(*b); });
  if (best == waiting_.end() || fitness(**best) == 0) return nullptr;
  auto live = std::move(*best);
  waiting_.erase(best);
  return live;
}

std::unique_ptr<LiveTile> LiveTiles::make(SectionModel& section, const Item& item,
                                          QQmlComponent& component, const QSizeF& size) {
  auto live = std::make_unique<LiveTile>();
  live->view = makeItem(component, parent_, [&](QQuickItem& view) {
    live->tile = new Tile(section, item);
    live->tile->setParent(&view);
    view.setSize(size);
    return QVariantMap{{QStringLiteral("tile"), QVariant::fromValue(live->tile)}};
  });
  if (!live->view) return nullptr;
  ++made_;
  return live;
}

LiveTiles::Map::iterator LiveTiles::release(Map::iterator entry) {
  auto live = std::move(entry->second);
  entry = live_.erase(entry);
  // A block's editor keeps what it knows of its text; a press is for what was there.
  if (TileFacts::isBlock(live->tile->item()) || live->view->property("pressed").toBool()) {
    end(*live);
    return entry;
  }
  live->index = -1;
  live->isPlaced = false;
  live->motion.settle(live->motion.position());
  if (std::exchange(live->mayFade, false)) {
    live->fade.aim({0, 0});
  } else {
    live->fade.settle({0, 0});
  }
  live->view->setVisible(live->fade.isMoving());
  waiting_.push_back(std::move(live));
  return entry;
}

void LiveTiles::trim(size_t most) {
  for (auto one = waiting_.begin(); one != waiting_.end() && waiting_.size() > most;) {
    if (most > 0 && (*one)->fade.isMoving()) {
      ++one;
    } else {
      end(**one);
      one = waiting_.erase(one);
    }
  }
}

void LiveTiles::clear() {
  forEach([](LiveTile& live) { end(live); });
  live_.clear();
  trim(0);
}

int LiveTiles::count() const { return int(live_.size() + waiting_.size()); }

}  // namespace tarnloft
