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

// The same for two lists of records, such as a section's items. Of two lists that share runs, only
// what lies between these is looked at.
template <class List>
QList<ListChange> listDifference(const List& before, const List& after) {
  using Record = typename List::value_type;
  qsizetype head = 0, tail = 0;
  if constexpr (requires { List::commonEnds(before, after); }) {
    const auto common = List::commonEnds(before, after);
    head = common.head;
    tail = common.tail;
  }
  const auto collect = [&](const List& list, std::vector<QUuid>& ids,
                           std::vector<const Record*>& values) {
    const size_t count = size_t(list.size() - head - tail);
    ids.reserve(count);
    values.reserve(count);
    auto record = list.begin();
    if constexpr (requires { list.from(head); }) record = list.from(head);
    for (size_t i = 0; i < count; ++i, ++record) {
      ids.push_back(record->id);
      values.push_back(&*record);
    }
  };
  std::vector<QUuid> oldIds, newIds;
  std::vector<const Record*> oldValues, newValues;
  collect(before, oldIds, oldValues);
  collect(after, newIds, newValues);
  auto changes = listDifference(oldIds, newIds, [&](qsizetype a, qsizetype b) {
    // Elements of lists that share storage are often one and the same.
    return oldValues[size_t(a)] == newValues[size_t(b)] ||
           *oldValues[size_t(a)] == *newValues[size_t(b)];
  });
  for (ListChange& change : changes) {
    if (change.kind != ListChange::Kind::change) change.from += head;
    if (change.kind != ListChange::Kind::remove) change.to += head;
  }
  return changes;
}

}  // namespace tarnloft
