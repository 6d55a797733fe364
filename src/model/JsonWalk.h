#pragma once

#include "model/Error.h"
#include "model/RecordFields.h"

#include <QStringList>

#include <cstring>
#include <simdjson.h>
#include <utility>

namespace tarnloft {

// The steps through a parsed document along the records' tables of fields. What becomes of a value
// is the caller's: each step hands it over with its place in the table as a compile-time number.
// The path of a failure is put together only while it unwinds, so a good document pays nothing for
// it. Include it in sources only.
class JsonWalk {
 public:
  using Element = simdjson::dom::element;

  // Why the last walk gave false.
  Error error() const;

  // True once a walk has passed over a key that it doesn't know.
  bool hasUnknownKeys() const { return hasUnknownKeys_; }

  enum class Occurrence { first, repeated };

  // Calls `take(place, content, occurrence)` for each key that the record's table knows, and asks
  // for the required ones. False as soon as `take` gives it.
  template <Record R, class Take>
  bool walkObject(Element element, Take&& take) {
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS) return fail("expected an object");
    FieldSet seen = 0;
    for (const auto [key, content] : object) {
      if (!takeField<R>(key, content, seen, take, FieldPlaces<R>())) return at(key);
    }
    return requireAll<R>(seen);
  }

  // Calls `take(entry)` for each entry of the list.
  template <class Take>
  bool walkArray(Element element, Take&& take) {
    simdjson::dom::array array;
    if (element.get(array) != simdjson::SUCCESS) return fail("expected a list");
    qsizetype index = 0;
    for (const Element entry : array) {
      if (!take(entry)) return at(index);
      ++index;
    }
    return true;
  }

  // True for the key of the field at that place.
  template <Record R, size_t Place>
  static bool isKeyAt(std::string_view key) {
    constexpr std::string_view known = fieldAt<R, Place>.key;
    return isKey<known.size()>(key, known.data());
  }

  // Calls `take(kind, content)` for the payload's one known key.
  template <class Take>
  bool walkPayload(Element element, Take&& take) {
    const auto known = payloadKind(element);
    return known && (takeKind(*known, take, PayloadKinds()) || at(payloadKeys[known->kind]));
  }

 protected:
  // All give false, so that a failing walk can end in them.
  bool fail(const char* reason);
  bool at(std::string_view key);
  bool at(qsizetype index);

 private:
  using FieldSet = quint32;  // one bit for each field, by its position in the table
  template <Record R>
  using FieldPlaces = std::make_index_sequence<fieldCount<R>>;
  using PayloadKinds = std::make_index_sequence<payloadKeys.size()>;

  struct PayloadContent {
    size_t kind;
    Element content;
  };

  // As a comparison of texts, but with the length of one as a constant, which is worth a third of
  // the walk.
  template <size_t Length>
  static bool isKey(std::string_view key, const char* known) {
    return key.size() == Length && std::memcmp(key.data(), known, Length) == 0;
  }

  template <Record R, class Take, size_t... Places>
  bool takeField(std::string_view key, Element content, FieldSet& seen, Take& take,
                 std::index_sequence<Places...>) {
    static_assert(sizeof...(Places) <= 32);
    bool good = true;
    const auto takeIf = [&](auto place) {
      if (!isKeyAt<R, place>(key)) return false;
      constexpr FieldSet bit = FieldSet(1) << place;
      good = take(place, content, seen & bit ? Occurrence::repeated : Occurrence::first);
      seen |= bit;
      return true;
    };
    if (!(takeIf(std::integral_constant<size_t, Places>()) || ...)) hasUnknownKeys_ = true;
    return good;
  }

  template <class Take, size_t... Kinds>
  static bool takeKind(const PayloadContent& known, Take& take, std::index_sequence<Kinds...>) {
    bool good = false;
    const auto takeIf = [&](auto kind) {
      if (known.kind == kind) good = take(kind, known.content);
      return known.kind == kind;
    };
    (void)(takeIf(std::integral_constant<size_t, Kinds>()) || ...);
    return good;
  }

  template <size_t... Kinds>
  static std::optional<size_t> kindOf(std::string_view key, std::index_sequence<Kinds...>) {
    std::optional<size_t> found;
    const auto findIf = [&](auto kind) {
      if (isKey<payloadKeys[kind].size()>(key, payloadKeys[kind].data())) found = kind;
      return found.has_value();
    };
    (void)(findIf(std::integral_constant<size_t, Kinds>()) || ...);
    return found;
  }

  template <class R, class T>
  static constexpr bool isOptional(const Field<R, std::optional<T>>&) {
    return true;
  }
  template <class R, class T>
  static constexpr bool isOptional(const Field<R, T>&) {
    return false;
  }

  template <Record R>
  static constexpr FieldSet requiredFields() {
    FieldSet bit = 1, required = 0;
    forEachField<R>([&](const auto& field) {
      if (!isOptional(field)) required |= bit;
      bit <<= 1;
    });
    return required;
  }

  template <Record R>
  bool requireAll(FieldSet seen) {
    FieldSet missing = requiredFields<R>() & ~seen;
    if (missing == 0) return true;
    std::string_view first;
    forEachField<R>([&](const auto& field) {
      if (missing & 1 && first.empty()) first = field.key;
      missing >>= 1;
    });
    fail("missing");
    return at(first);
  }

  // None, with the failure told, unless there is exactly one known key.
  std::optional<PayloadContent> payloadKind(Element element);

  bool hasUnknownKeys_ = false;
  const char* reason_ = "";
  QStringList path_;  // innermost first
};

}  // namespace tarnloft
