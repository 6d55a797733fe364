#pragma once

#include <QUuid>

#include <algorithm>

namespace tarnloft {

// The place of the record of that id in a list of records; -1 if there is none.
template <class List>
qsizetype indexOf(const List& list, const QUuid& id) {
  qsizetype index = 0;
  for (const auto& record : list) {
    if (record.id == id) return index;
    ++index;
  }
  return -1;
}

// The record of that id; null if there is none.
template <class List>
const typename List::value_type* find(const List& list, const QUuid& id) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const auto& record) { return record.id == id; });
  return found == list.end() ? nullptr : &*found;
}

}  // namespace tarnloft
