#pragma once

#include "model/RecordFields.h"

#include <QHashFunctions>

namespace tarnloft {

// A hash over all stored fields of a record; equal records have equal hashes.
template <Record R>
size_t qHash(const R& record, size_t seed = 0);

// One overload for each kind of value that a record can hold.
struct RecordHasher {
  template <Record R>
  static size_t hash(const R& value, size_t seed) {
    forEachField<R>([&](const auto& field) { seed = hash(value.*(field.member), seed + 1); });
    return seed;
  }
  template <TabledEnum E>
  static size_t hash(E value, size_t seed) {
    return ::qHash(static_cast<int>(value), seed);
  }
  template <class T>
  static size_t hash(const std::optional<T>& value, size_t seed) {
    return value ? hash(*value, seed) : ~seed;
  }
  template <class T>
  static size_t hash(const QList<T>& list, size_t seed) {
    for (const T& element : list) seed = hash(element, seed + 1);
    return seed;
  }
  template <class T>
  static size_t hash(const SharedList<T>& list, size_t seed) {
    for (const T& element : list) seed = hash(element, seed + 1);
    return seed;
  }
  static size_t hash(const ItemPayload& payload, size_t seed) {
    return std::visit([&](const auto& value) { return hash(value, seed + payload.index()); },
                      payload);
  }
  static size_t hash(Timestamp value, size_t seed) {
    return ::qHash(qint64(value.time_since_epoch().count()), seed);
  }
  static size_t hash(const QString& value, size_t seed) { return ::qHash(value, seed); }
  static size_t hash(const QUuid& value, size_t seed) { return ::qHash(value, seed); }
  static size_t hash(qint64 value, size_t seed) { return ::qHash(value, seed); }
  static size_t hash(double value, size_t seed) { return ::qHash(value, seed); }
};

template <Record R>
size_t qHash(const R& record, size_t seed) {
  return RecordHasher::hash(record, seed);
}

}  // namespace tarnloft
