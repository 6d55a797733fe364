#pragma once

#include "model/ListDifference.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <vector>

namespace tarnloft {

// What one step did to a list of records, by their ids.
struct ListStep {
  QSet<QUuid> touched;  // removed, added, moved or changed
  QSet<QUuid> moved;    // within the list
};

template <class List>
std::vector<QUuid> idsOf(const List& list) {
  std::vector<QUuid> ids;
  ids.reserve(size_t(list.size()));
  for (const auto& element : list) ids.push_back(element.id);
  return ids;
}

template <class List>
ListStep listStep(const List& before, const List& after) {
  ListStep step;
  if (before == after) return step;
  std::vector<QUuid> ids = idsOf(before);  // as the changes so far have left them
  const std::vector<QUuid> newIds = idsOf(after);
  for (const ListChange& change : listDifference(before, after)) {
    const auto old = ids.begin() + std::min(change.from, qsizetype(ids.size()));
    const auto target = ids.begin() + std::min(change.to, qsizetype(ids.size()));
    switch (change.kind) {
      case ListChange::Kind::remove:
        step.touched += QSet<QUuid>(old, old + change.count);
        ids.erase(old, old + change.count);
        break;
      case ListChange::Kind::move:
        step.moved.insert(*old);
        if (old < target) {
          std::rotate(old, old + 1, target + 1);
        } else {
          std::rotate(target, old, old + 1);
        }
        break;
      case ListChange::Kind::insert: {
        const auto added = newIds.begin() + change.from;
        step.touched += QSet<QUuid>(added, added + change.count);
        ids.insert(target, added, added + change.count);
        break;
      }
      case ListChange::Kind::change: step.touched.insert(newIds[size_t(change.to)]); break;
    }
  }
  step.touched += step.moved;
  return step;
}

// What is to become of a list, by ids.
template <class Element>
struct Rearrangement {
  QSet<QUuid> leaving;             // elements of the present list
  QHash<QUuid, Element> changed;   // elements of the present list, with their new values
  QHash<QUuid, Element> arriving;  // elements of the list of places, with their values
};

// Where to put those that arrive once the others have left: behind the nearest that stands in front
// of them in the list of places and is there already, else in front of the nearest behind them.
template <class List, class Element = typename List::value_type>
std::vector<std::pair<qsizetype, const Element*>> arrivals(const List& places,
                                                           const QHash<QUuid, Element>& arriving,
                                                           const QHash<QUuid, qsizetype>& staying) {
  std::vector<std::pair<qsizetype, const Element*>> result;
  bool isFirst = true;  // none of those that stay has been met
  qsizetype at = 0;
  for (const Element& place : places) {
    if (const auto value = arriving.constFind(place.id); value != arriving.cend()) {
      result.emplace_back(at, &*value);
    } else if (const auto stays = staying.constFind(place.id); stays != staying.cend()) {
      if (isFirst) {
        for (auto& waiting : result) waiting.first = *stays;
      }
      isFirst = false;
      at = *stays + 1;
    }
  }
  std::stable_sort(result.begin(), result.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  return result;
}

// Storage of what nothing happens to stays shared with the present list.
template <class List, class Element = typename List::value_type>
List rearranged(const List& present, const List& places, const Rearrangement<Element>& change) {
  List result = present;
  std::vector<qsizetype> leaving;
  QHash<QUuid, qsizetype> staying;
  qsizetype index = 0;
  for (const Element& element : present) {
    if (const auto value = change.changed.constFind(element.id); value != change.changed.cend()) {
      result[index] = *value;
    }
    if (change.leaving.contains(element.id)) {
      leaving.push_back(index);
    } else if (!change.arriving.isEmpty()) {
      staying.insert(element.id, index - qsizetype(leaving.size()));
    }
    ++index;
  }
  std::for_each(leaving.rbegin(), leaving.rend(), [&](qsizetype at) { result.takeAt(at); });
  const auto arriving = arrivals(places, change.arriving, staying);
  std::for_each(arriving.rbegin(), arriving.rend(),
                [&](const auto& arrival) { result.insert(arrival.first, *arrival.second); });
  return result;
}

}  // namespace tarnloft
