#include "model/ListDifference.h"

#include <QHash>

#include <algorithm>
#include <optional>

namespace tarnloft {
namespace {

using Kind = ListChange::Kind;
using Ids = std::vector<QUuid>;
using Positions = QHash<QUuid, qsizetype>;

// None if an id stands twice.
std::optional<Positions> positionsOf(const Ids& ids, qsizetype from, qsizetype to) {
  Positions positions;
  positions.reserve(to - from);
  for (qsizetype i = from; i < to; ++i) positions.insert(ids[size_t(i)], i);
  if (positions.size() != to - from) return std::nullopt;
  return positions;
}

QList<ListChange> replaceAll(const Ids& before, const Ids& after) {
  QList<ListChange> changes;
  if (!before.empty()) changes << ListChange{Kind::remove, 0, 0, qsizetype(before.size())};
  if (!after.empty()) changes << ListChange{Kind::insert, 0, 0, qsizetype(after.size())};
  return changes;
}

// Marks a longest increasing run of the values (not necessarily neighbours); none are equal.
std::vector<bool> longestIncreasing(const std::vector<qsizetype>& values) {
  std::vector<size_t> tails;  // where the best run of each length ends
  std::vector<size_t> previous(values.size(), values.size());
  for (size_t i = 0; i < values.size(); ++i) {
    const auto place = std::lower_bound(tails.begin(), tails.end(), values[i],
                                        [&](size_t tail, qsizetype v) { return values[tail] < v; });
    if (place != tails.begin()) previous[i] = *std::prev(place);
    if (place == tails.end()) {
      tails.push_back(i);
    } else {
      *place = i;
    }
  }
  std::vector<bool> marked(values.size(), false);
  for (size_t i = tails.empty() ? values.size() : tails.back(); i < values.size();
       i = previous[i]) {
    marked[i] = true;
  }
  return marked;
}

// The part of two lists between their common beginning and their common end.
class Middle {
 public:
  Middle(const Ids& before, const Ids& after, qsizetype from, qsizetype oldTo, qsizetype newTo)
      : before_(before), after_(after), from_(from), oldTo_(oldTo), newTo_(newTo) {}

  // False if an id stands twice.
  bool appendTo(QList<ListChange>& changes) {
    const auto oldPositions = positionsOf(before_, from_, oldTo_);
    const auto newPositions = positionsOf(after_, from_, newTo_);
    if (!oldPositions || !newPositions) return false;
    appendRemovals(*newPositions, changes);
    findMovers(*oldPositions);
    appendMovesAndInsertions(*oldPositions, changes);
    return true;
  }

 private:
  // From the back, so that positions in front stay; keeps the ids that remain in `present_`.
  void appendRemovals(const Positions& newPositions, QList<ListChange>& changes) {
    for (qsizetype i = oldTo_ - 1; i >= from_; --i) {
      if (newPositions.contains(before_[size_t(i)])) {
        present_.push_back(before_[size_t(i)]);
      } else if (!changes.isEmpty() && changes.last().from == i + 1) {
        --changes.last().from;
        ++changes.last().count;
      } else {
        changes << ListChange{Kind::remove, i, 0, 1};
      }
    }
    std::reverse(present_.begin(), present_.end());
  }

  // All that stay are movers but for a longest run that is in order already.
  void findMovers(const Positions& oldPositions) {
    std::vector<qsizetype> stayers;  // old positions, in new order
    for (qsizetype i = from_; i < newTo_; ++i) {
      const auto old = oldPositions.constFind(after_[size_t(i)]);
      if (old != oldPositions.cend()) stayers.push_back(*old);
    }
    const std::vector<bool> kept = longestIncreasing(stayers);
    for (size_t i = 0; i < stayers.size(); ++i) {
      if (!kept[i]) movers_.insert(before_[size_t(stayers[i])], 0);
    }
  }

  // Each mover and each new element goes right behind the one that precedes it in the new list,
  // which stands right by then. Movers that wait for their turn may stand in between.
  void appendMovesAndInsertions(const Positions& oldPositions, QList<ListChange>& changes) {
    size_t at = 0;  // in `present_`, behind the last element that stands right
    for (qsizetype i = from_; i < newTo_; ++i) {
      const QUuid& id = after_[size_t(i)];
      if (!oldPositions.contains(id)) {
        present_.insert(present_.begin() + qsizetype(at), id);
        appendInsertion(qsizetype(at) + from_, i, changes);
      } else if (movers_.remove(id)) {
        at = move(id, at, changes);
      } else {
        at = size_t(std::find(present_.begin() + qsizetype(at), present_.end(), id) -
                    present_.begin());
      }
      ++at;
    }
  }

  // Gives the position at which the element then stands.
  size_t move(const QUuid& id, size_t target, QList<ListChange>& changes) {
    const size_t source =
        size_t(std::find(present_.begin(), present_.end(), id) - present_.begin());
    present_.erase(present_.begin() + qsizetype(source));
    if (source < target) --target;
    present_.insert(present_.begin() + qsizetype(target), id);
    if (source != target) {
      changes << ListChange{Kind::move, qsizetype(source) + from_, qsizetype(target) + from_, 1};
    }
    return target;
  }

  // Neighbours that arrive together are one step, but only where they already stand at the place
  // that they have in the new list; a waiting mover in front makes it another one.
  void appendInsertion(qsizetype place, qsizetype inNewList, QList<ListChange>& changes) {
    const bool joins = !changes.isEmpty() && changes.last().kind == Kind::insert &&
                       changes.last().to + changes.last().count == place &&
                       changes.last().from + changes.last().count == inNewList;
    if (joins) {
      ++changes.last().count;
    } else {
      changes << ListChange{Kind::insert, inNewList, place, 1};
    }
  }

  const Ids& before_;
  const Ids& after_;
  const qsizetype from_;
  const qsizetype oldTo_;
  const qsizetype newTo_;
  Ids present_;       // the middle as the steps so far have left it
  Positions movers_;  // a set: those that still have to move
};

// The usual case, without looking anything up: one element went to the other end of the middle, and
// the rest of it moved up by one.
std::optional<ListChange> onlyMove(const Ids& before, const Ids& after, qsizetype from,
                                   qsizetype oldTo, qsizetype newTo) {
  if (oldTo != newTo || newTo - from < 2) return std::nullopt;
  const auto oldFirst = before.begin() + from, oldLast = before.begin() + oldTo - 1;
  const auto newFirst = after.begin() + from, newLast = after.begin() + newTo - 1;
  if (*oldFirst == *newLast && std::equal(newFirst, newLast, oldFirst + 1)) {
    return ListChange{Kind::move, from, newTo - 1, 1};
  }
  if (*oldLast == *newFirst && std::equal(oldFirst, oldLast, newFirst + 1)) {
    return ListChange{Kind::move, oldTo - 1, from, 1};
  }
  return std::nullopt;
}

}  // namespace

QList<ListChange> listDifference(
    const std::vector<QUuid>& before, const std::vector<QUuid>& after,
    const std::function<bool(qsizetype before, qsizetype after)>& sameValue) {
  const qsizetype oldSize = qsizetype(before.size()), newSize = qsizetype(after.size());
  const qsizetype shorter = std::min(oldSize, newSize);
  qsizetype head = 0, tail = 0;
  while (head < shorter && before[size_t(head)] == after[size_t(head)]) ++head;
  while (tail < shorter - head &&
         before[size_t(oldSize - tail - 1)] == after[size_t(newSize - tail - 1)]) {
    ++tail;
  }
  const qsizetype oldTo = oldSize - tail, newTo = newSize - tail;
  QList<ListChange> changes;
  std::function<qsizetype(qsizetype)> oldPlace;  // of a new position in between; -1 for none
  if (const auto move = onlyMove(before, after, head, oldTo, newTo)) {
    changes << *move;
    oldPlace = [step = *move](qsizetype i) {
      if (i == step.to) return step.from;
      return step.to > step.from ? i + 1 : i - 1;
    };
  } else {
    if (!Middle(before, after, head, oldTo, newTo).appendTo(changes)) {
      return replaceAll(before, after);
    }
    oldPlace = [&after, places = *positionsOf(before, head, oldTo)](qsizetype i) {
      return places.value(after[size_t(i)], -1);
    };
  }
  const auto appendChange = [&](qsizetype oldAt, qsizetype newAt) {
    if (!sameValue(oldAt, newAt)) changes << ListChange{Kind::change, 0, newAt, 1};
  };
  for (qsizetype i = 0; i < head; ++i) appendChange(i, i);
  for (qsizetype i = head; i < newTo; ++i) {
    if (const qsizetype old = oldPlace(i); old >= 0) appendChange(old, i);
  }
  for (qsizetype i = tail; i > 0; --i) appendChange(oldSize - i, newSize - i);
  return changes;
}

}  // namespace tarnloft
