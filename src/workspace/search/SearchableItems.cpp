#include "workspace/search/SearchableItems.h"

#include "model/SearchText.h"

#include <algorithm>

namespace tarnloft {
namespace {

// No byte of UTF-8, so no query spans two tokens.
constexpr char separator = '\xFF';

}  // namespace

SearchableItems::SearchableItems(const SharedList<Item>& items) : items_(items) {
  const SearchFolding folding;
  for (const Item& item : items) {
    starts_.push_back(folded_.size());
    for (const QString& token : item.searchTokens()) {
      folding.append(token, folded_);
      folded_ += separator;
    }
  }
  starts_.push_back(folded_.size());
}

SharedList<Item> SearchableItems::matching(const QString& query) const {
  std::string wanted;
  SearchFolding().append(query.trimmed(), wanted);
  if (wanted.empty()) return items_;
  SharedList<Item> found;
  auto item = items_.begin();
  size_t place = 0;
  for (size_t at = folded_.find(wanted); at != std::string::npos;
       at = folded_.find(wanted, starts_.at(place))) {
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), at);
    for (const auto to = size_t(next - starts_.begin()); place + 1 < to; ++place) ++item;
    found.append(*item);
    ++item;
    ++place;
  }
  return found;
}

}  // namespace tarnloft
