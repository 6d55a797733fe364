#pragma once

#include "controls/motion/SpringMotion.h"
#include "workspace/tiles/Tile.h"

#include <QQmlComponent>
#include <QQuickItem>

#include <map>
#include <memory>
#include <vector>

namespace tarnloft {

// A view that exists, and the item that it shows. The view is a child of the grid, and the tile one
// of the view.
struct LiveTile {
  Tile* tile = nullptr;
  QQuickItem* view = nullptr;
  int index = -1;          // among the section's shown items; -1 if its item isn't there
  bool isPlaced = false;   // it has stood somewhere as that item
  bool isWatched = false;  // the grid hears of its focus
  SpringMotion motion;
  SpringMotion fade;     // along x, from 0 to `opaque`
  bool mayFade = false;  // its item has gone: it fades where it is, unless another item needs it

  static constexpr double opaque = 100;

  void show(double opacity);

  // It has the keyboard's focus or an open menu, or is being dragged, and so must not go.
  bool isHeld() const;
};

// The views of a grid, by the id of their item, and those that wait for another item of their kind.
class LiveTiles {
 public:
  explicit LiveTiles(QQuickItem& parent) : parent_(parent) {}

  LiveTile* find(const QUuid& id) const;
  // Gives the item's view its present value; null if it has none. A view of another kind ends.
  LiveTile* follow(const Item& item);
  // The item's view: its own, one that waited or was fading, or a new one; null if none can be
  // made.
  LiveTile* obtain(SectionModel& section, const Item& item, QQmlComponent& component,
                   const QSizeF& size);
  // Lets go of the views that pass.
  template <class Test>
  void releaseIf(Test&& test) {
    for (auto entry = live_.begin(); entry != live_.end();) {
      entry = test(*entry->second) ? release(entry) : std::next(entry);
    }
  }
  template <class Visit>
  void forEach(Visit&& visit) const {
    for (const auto& [id, live] : live_) visit(*live);
  }
  // Those that wait and can still be seen.
  template <class Visit>
  void forEachFading(Visit&& visit) const {
    for (const auto& live : waiting_) {
      if (live->fade.isMoving()) visit(*live);
    }
  }
  // Ends waiting views beyond that number, but for those that fade.
  void trim(size_t most);
  // Ends all.
  void clear();

  int count() const;
  int madeCount() const { return made_; }

 private:
  using Map = std::map<QUuid, std::unique_ptr<LiveTile>>;

  Map::iterator release(Map::iterator entry);
  std::unique_ptr<LiveTile> takeWaiting(const Item& item);
  std::unique_ptr<LiveTile> make(SectionModel& section, const Item& item, QQmlComponent& component,
                                 const QSizeF& size);

  QQuickItem& parent_;
  Map live_;
  std::vector<std::unique_ptr<LiveTile>> waiting_;  // the newest last
  int made_ = 0;
};

}  // namespace tarnloft
