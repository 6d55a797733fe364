#include "workspace/selection/TileSelection.h"

#include <algorithm>

namespace tarnloft {

bool TileSelection::contains(const QUuid& id, const QUuid& section) const {
  return sectionID_ == section && ids_.contains(id);
}

void TileSelection::toggle(const QUuid& id, const QUuid& section) {
  QSet<QUuid> ids = sectionID_ == section ? ids_ : QSet<QUuid>();
  if (!ids.remove(id)) ids.insert(id);
  assign(section, ids, id);
}

void TileSelection::extend(const QUuid& id, const QUuid& section, const QList<QUuid>& order) {
  if (sectionID_ != section || !anchor_) return assign(section, {id}, id);
  QSet<QUuid> ids = ids_;
  const auto [first, last] = std::minmax({order.indexOf(*anchor_), order.indexOf(id)});
  if (first < 0) {
    ids.insert(id);
  } else {
    for (qsizetype i = first; i <= last; ++i) ids.insert(order.at(i));
  }
  assign(section, ids, anchor_);
}

void TileSelection::selectAll(const QList<QUuid>& items, const QUuid& section) {
  if (!items.isEmpty()) assign(section, {items.begin(), items.end()}, items.last());
}

void TileSelection::clear() { assign(std::nullopt, {}, std::nullopt); }

void TileSelection::assign(const std::optional<QUuid>& section, const QSet<QUuid>& ids,
                           const std::optional<QUuid>& anchor) {
  const auto newSection = ids.isEmpty() ? std::nullopt : section;
  const bool otherSection = sectionID_ != newSection, otherIds = ids_ != ids;
  sectionID_ = newSection;
  ids_ = ids;
  anchor_ = ids.isEmpty() ? std::nullopt : anchor;
  if (otherSection) emit sectionIDChanged();
  if (otherIds) emit idsChanged();
}

}  // namespace tarnloft
