#pragma once

#include "library/SearchableBrand.h"

#include <QThreadPool>

#include <future>
#include <memory>

namespace tarnloft {

// Finds the items of one brand that a search text matches, at the cost of a walk over their folded
// texts. Main thread; folding the brand is done beside it.
class BrandSearch {
 public:
  // Which items match: by the places of the section and of the item in it.
  class Matches {
   public:
    bool operator()(qsizetype section, qsizetype item) const {
      return matches_[sections_[size_t(section)] + size_t(item) + 1];
    }

   private:
    friend BrandSearch;
    std::vector<bool> matches_;     // for each section, and behind it for each of its items
    std::vector<size_t> sections_;  // where each section stands in that
  };

  // Begins to fold these sections' texts, unless they are those that it has.
  void follow(const QList<Section>& sections);
  // Of the sections that are followed. The query must not be empty.
  Matches matches(const QString& query) const;

 private:
  QList<Section> sections_;
  QThreadPool threads_;  // its own: the toolkit waits for the common one while it draws
  std::shared_future<std::shared_ptr<const SearchableBrand>> folded_;
};

}  // namespace tarnloft
