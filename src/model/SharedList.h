#pragma once

#include <QList>

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace tarnloft {

// A list for long runs of records. Copies share their storage, and changing one element of a copy
// duplicates a run of at most `runLength` elements and the index of runs, not the whole list: that
// is what keeps one undo step of a large brand small. Positions are 0 to size() - 1; any other is a
// programming error. Thread safety is that of QList.
template <class T>
class SharedList {
 public:
  using value_type = T;
  static constexpr qsizetype runLength = 64;

  class const_iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = qsizetype;
    using pointer = const T*;
    using reference = const T&;

    const_iterator() = default;
    const T& operator*() const { return (*run_)[index_]; }
    const T* operator->() const { return &(*run_)[index_]; }
    const_iterator& operator++() {
      if (++index_ == run_->size()) {
        ++run_;
        index_ = 0;
      }
      return *this;
    }
    const_iterator operator++(int) {
      auto before = *this;
      ++*this;
      return before;
    }
    bool operator==(const const_iterator&) const = default;

   private:
    friend SharedList;
    explicit const_iterator(const QList<T>* run) : run_(run) {}
    const QList<T>* run_ = nullptr;
    qsizetype index_ = 0;
  };

  SharedList() = default;
  SharedList(std::initializer_list<T> values) {
    for (const T& value : values) append(value);
  }

  qsizetype size() const { return size_; }
  bool isEmpty() const { return size_ == 0; }
  const_iterator begin() const { return const_iterator(runs_.constData()); }
  const_iterator end() const { return const_iterator(runs_.constData() + runs_.size()); }

  // From that element on; `position` may be size().
  const_iterator from(qsizetype position) const {
    if (position == size_) return end();
    const Place place = find(position);
    const_iterator result(runs_.constData() + place.run);
    result.index_ = place.index;
    return result;
  }

  // How many elements the lists have in common at their beginnings and, behind those, at their ends,
  // as far as runs tell that both of them hold. Looks at no element.
  struct CommonEnds {
    qsizetype head = 0;
    qsizetype tail = 0;
  };
  static CommonEnds commonEnds(const SharedList& a, const SharedList& b) {
    CommonEnds common;
    const qsizetype shorter = std::min(a.runs_.size(), b.runs_.size());
    qsizetype first = 0;
    for (; first < shorter && a.runs_.at(first).isSharedWith(b.runs_.at(first)); ++first) {
      common.head += a.runs_.at(first).size();
    }
    for (qsizetype last = 1; last <= shorter - first; ++last) {
      const QList<T>& run = a.runs_.at(a.runs_.size() - last);
      if (!run.isSharedWith(b.runs_.at(b.runs_.size() - last))) break;
      common.tail += run.size();
    }
    return common;
  }

  const T& at(qsizetype position) const {
    const Place place = find(position);
    return runs_.at(place.run).at(place.index);
  }
  const T& operator[](qsizetype position) const { return at(position); }
  // Detaches the run that holds the element; read through `at` or a const list where possible.
  T& operator[](qsizetype position) {
    const Place place = find(position);
    return runs_[place.run][place.index];
  }

  void append(T value) { emplaceBack(std::move(value)); }

  // Makes an element at the end, where it will stay until the list changes.
  template <class... Arguments>
  T& emplaceBack(Arguments&&... arguments) {
    if (runs_.isEmpty() || runs_.constLast().size() >= runLength) startRun();
    ++size_;
    return runs_.last().emplaceBack(std::forward<Arguments>(arguments)...);
  }

  // `position` may be size(), which appends.
  void insert(qsizetype position, T value) {
    if (position == size_) return append(std::move(value));
    const Place place = find(position);
    runs_[place.run].insert(place.index, std::move(value));
    ++size_;
    if (runs_.at(place.run).size() > runLength) split(place.run);
  }

  T takeAt(qsizetype position) {
    const Place place = find(position);
    T value = runs_[place.run].takeAt(place.index);
    if (runs_.at(place.run).isEmpty()) runs_.removeAt(place.run);
    --size_;
    return value;
  }

  void clear() { *this = SharedList(); }

  // Runs that are shared compare at once; how elements fall into runs plays no part.
  friend bool operator==(const SharedList& a, const SharedList& b) {
    if (a.size_ != b.size_) return false;
    const bool sameRuns =
        std::equal(a.runs_.begin(), a.runs_.end(), b.runs_.begin(), b.runs_.end(),
                   [](const QList<T>& x, const QList<T>& y) { return x.size() == y.size(); });
    return sameRuns ? a.runs_ == b.runs_ : std::equal(a.begin(), a.end(), b.begin());
  }

 private:
  struct Place {
    qsizetype run;
    qsizetype index;
  };

  Place find(qsizetype position) const {
    Q_ASSERT(position >= 0 && position < size_);
    qsizetype run = 0;
    while (position >= runs_.at(run).size()) position -= runs_.at(run++).size();
    return {run, position};
  }

  void startRun() {
    runs_.append(QList<T>());
    if (runs_.size() > 1) runs_.last().reserve(runLength);  // a long list will fill it
  }

  void split(qsizetype run) {
    const qsizetype half = runs_.at(run).size() / 2;
    runs_.insert(run + 1, runs_.at(run).mid(half));
    runs_[run].resize(half);
  }

  QList<QList<T>> runs_;  // no run is empty
  qsizetype size_ = 0;
};

}  // namespace tarnloft
