#pragma once

#include "model/Item.h"
#include "model/SharedList.h"

#include <string>
#include <vector>

namespace tarnloft {

// The items of a section, folded once and packed for searching, so that a keystroke is one walk
// over a text. By the rules of `Item::matchesSearch`.
class SearchableItems {
 public:
  explicit SearchableItems(const SharedList<Item>& items);

  const SharedList<Item>& items() const { return items_; }

  // Those that match, in order; all of them for a blank query.
  SharedList<Item> matching(const QString& query) const;

 private:
  SharedList<Item> items_;
  std::string folded_;          // UTF-8, each token with a separator behind it
  std::vector<size_t> starts_;  // of each item's tokens in it, and its end
};

}  // namespace tarnloft
