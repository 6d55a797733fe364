#pragma once

#include "model/RecordFields.h"

#include <concepts>

namespace tarnloft {

// Takes a value from `from` to `to`, where it is `present` by now: what later work left alone
// becomes as in `to`, what it changed stays. Records whose fields make sense one by one are merged
// so; any other value is one whole.
template <class T>
T merged(const T& from, const T& to, const T& present);

template <class T>
concept MergedByField = Record<T> && !std::same_as<T, AssetRef> && !std::same_as<T, Emblem>;

// What a brand or a section holds is merged by those who know where it may have gone.
template <class T>
concept HeldList = std::same_as<T, QList<Section>> || std::same_as<T, SharedList<Item>>;

template <Record R>
void mergeFields(const R& from, const R& to, R& present) {
  forEachField<R>([&](const auto& field) {
    auto& value = present.*(field.member);
    if constexpr (!HeldList<std::remove_cvref_t<decltype(value)>>) {
      value = merged(from.*(field.member), to.*(field.member), value);
    }
  });
}

// An item that became another kind stays that kind.
inline ItemPayload mergedPayload(const ItemPayload& from, const ItemPayload& to,
                                 const ItemPayload& present) {
  if (from.index() != present.index() || to.index() != present.index()) return present;
  return std::visit(
      [&]<class Content>(const Content& content) -> ItemPayload {
        return merged(std::get<Content>(from), std::get<Content>(to), content);
      },
      present);
}

template <class T>
T merged(const T& from, const T& to, const T& present) {
  if (from == to || to == present) return present;
  if (from == present) return to;
  if constexpr (std::same_as<T, ItemPayload>) {
    return mergedPayload(from, to, present);
  } else if constexpr (MergedByField<T>) {
    T result = present;
    mergeFields(from, to, result);
    return result;
  } else {
    return present;
  }
}

}  // namespace tarnloft
