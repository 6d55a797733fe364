#pragma once

#include <QList>
#include <QUuid>

#include <functional>
#include <vector>

namespace tarnloft {

// One step from an old list to a new one. Positions are those of the list as the steps before it
// have left it.
struct ListChange {
  enum class Kind {
    remove,  // `count` elements from `from` on
    move,    // the element at `from`, so that it then stands at `to`
    insert,  // the `count` elements that stand in the new list from `from` on, at `to`
    change   // the element at `to` has the new list's value
  };

  Kind kind;
  qsizetype from = 0;
  qsizetype to = 0;
  qsizetype count = 1;

  bool operator==(const ListChange&) const = default;
};

// The fewest elements removed, moved, inserted and changed that make the old list the new one, with
// elements told apart by id: first all removals, then moves and insertions from the front, then
// changes. `sameValue(before, after)` compares two elements of one id by their positions in the two
// lists. Lists that hold an id twice between their common beginning and end are replaced whole.
QList<ListChange> listDifference(
    const std::vector<QUuid>& before, const std::vector<QUuid>& after,
    const std::function<bool(qsizetype before, qsizetype after)>& sameValue);

// The same for two lists of records, such as a section's items.
template <class List>
QList<ListChange> listDifference(const List& before, const List& after) {
  std::vector<QUuid> oldIds, newIds;
  std::vector<const typename List::value_type*> oldValues, newValues;
  oldIds.reserve(size_t(before.size()));
  newIds.reserve(size_t(after.size()));
  oldValues.reserve(size_t(before.size()));
  newValues.reserve(size_t(after.size()));
  for (const auto& element : before) {
    oldIds.push_back(element.id);
    oldValues.push_back(&element);
  }
  for (const auto& element : after) {
    newIds.push_back(element.id);
    newValues.push_back(&element);
  }
  return listDifference(oldIds, newIds, [&](qsizetype a, qsizetype b) {
    // Elements of lists that share storage are often one and the same.
    return oldValues[size_t(a)] == newValues[size_t(b)] ||
           *oldValues[size_t(a)] == *newValues[size_t(b)];
  });
}

}  // namespace tarnloft
