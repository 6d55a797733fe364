#include "library/SearchHits.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

void SearchHits::append(Group group) {
  if (group.numbers.empty()) return;
  group.first = std::exchange(size_, size_ + qsizetype(group.numbers.size()));
  groups_.push_back(std::move(group));
}

const SearchHits::Group& SearchHits::groupOf(qsizetype place) const {
  const auto behind =
      std::upper_bound(groups_.begin(), groups_.end(), place,
                       [](qsizetype at, const Group& group) { return at < group.first; });
  return *std::prev(behind);
}

SearchHit SearchHits::at(qsizetype place) const {
  const Group& group = groupOf(place);
  return group.brand->hit(group.numbers.at(size_t(place - group.first)), group.brandURL);
}

QList<SearchHit> SearchHits::toList() const {
  QList<SearchHit> hits;
  hits.reserve(size_);
  for (qsizetype place = 0; place < size_; ++place) hits << at(place);
  return hits;
}

}  // namespace tarnloft
