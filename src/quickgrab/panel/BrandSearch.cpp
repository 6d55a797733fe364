#include "quickgrab/panel/BrandSearch.h"

#include "model/SearchText.h"

namespace tarnloft {

void BrandSearch::follow(const QList<Section>& sections) {
  if (folded_.valid() && sections_.isSharedWith(sections)) return;
  sections_ = sections;
  using Folded = std::shared_ptr<const SearchableBrand>;
  const auto task = std::make_shared<std::packaged_task<Folded()>>([sections] {
    Brand brand;
    brand.sections = sections;
    return std::make_shared<const SearchableBrand>(brand);
  });
  folded_ = task->get_future();
  threads_.start([task] { (*task)(); });
}

BrandSearch::Matches BrandSearch::matches(const QString& query) const {
  std::string folded;
  SearchFolding().append(query, folded);
  Matches result;
  size_t place = 0;
  for (const Section& section : sections_) {
    result.sections_.push_back(place);
    place += size_t(section.items.size()) + 1;
  }
  // A brand's hits are numbered as its sections and items stand, one behind the other.
  result.matches_.resize(place);
  for (const quint32 number : folded_.get()->matches(folded)) result.matches_[number] = true;
  return result;
}

}  // namespace tarnloft
