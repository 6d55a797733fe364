#pragma once

#include "library/SearchableBrand.h"

#include <memory>

namespace tarnloft {

// The hits of a query, brand by brand. Each is made when it is asked for, so that it costs little
// to find and to drop as many as there are. Any thread, one at a time.
class SearchHits {
 public:
  struct Group {
    QString brandURL;
    std::shared_ptr<const SearchableBrand> brand;
    std::vector<quint32> numbers;  // of its hits; at least one
    qsizetype first = 0;           // the place of the first among all
  };

  // Takes no empty group.
  void append(Group group);

  qsizetype size() const { return size_; }
  const std::vector<Group>& groups() const { return groups_; }
  // The one that holds the hit of that place.
  const Group& groupOf(qsizetype place) const;
  SearchHit at(qsizetype place) const;
  QList<SearchHit> toList() const;

 private:
  std::vector<Group> groups_;
  qsizetype size_ = 0;
};

}  // namespace tarnloft
