#pragma once

#include "document/BrandDocument.h"
#include "document/BrandPlace.h"

#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

namespace tarnloft {

// Takes items for a section of a brand whose document has gone while they were made.
using AddToClosed =
    std::function<void(const BrandPlace& brand, const QUuid& section, const QList<Item>& items)>;

// Lets the items of one import into their section in order, whichever is ready first: each waits
// for those in front of it. Main thread, but for its destruction.
class ItemLanding {
 public:
  using Place = size_t;

  ItemLanding(BrandDocument& document, const QUuid& section, AddToClosed addToClosed)
      : document_(&document),
        brand_{document.packageURL(), document.brand().id},
        section_(section),
        addToClosed_(std::move(addToClosed)) {}

  // Takes the next place; each must be landed on once.
  Place take();
  // None for what failed, for which nobody waits.
  void land(Place place, std::optional<Item> item);

 private:
  struct Slot {
    bool landed = false;
    std::optional<Item> item;
  };

  QPointer<BrandDocument> document_;
  BrandPlace brand_;
  QUuid section_;
  AddToClosed addToClosed_;
  std::vector<Slot> slots_;
  size_t next_ = 0;  // the first place that hasn't been landed on
};

}  // namespace tarnloft
