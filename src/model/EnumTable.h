#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tarnloft {

// One case of a closed enumeration and its stored form.
template <class E>
struct EnumCase {
  E value;
  std::string_view rawValue;
};

// Specialised by each enumeration that is stored: `cases` lists all of them in declared order.
template <class E>
struct EnumTable;

template <class E>
concept TabledEnum = requires {
  EnumTable<E>::cases;
};

template <TabledEnum E>
constexpr std::string_view rawValue(E value) {
  for (const auto& entry : EnumTable<E>::cases) {
    if (entry.value == value) return entry.rawValue;
  }
  return {};
}

template <TabledEnum E>
constexpr std::optional<E> fromRawValue(std::string_view text) {
  for (const auto& entry : EnumTable<E>::cases) {
    if (entry.rawValue == text) return entry.value;
  }
  return std::nullopt;
}

template <TabledEnum E>
constexpr auto allCases() {
  std::array<E, EnumTable<E>::cases.size()> values{};
  for (size_t i = 0; i < values.size(); ++i) values[i] = EnumTable<E>::cases[i].value;
  return values;
}

}  // namespace tarnloft
