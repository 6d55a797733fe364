#pragma once

#include "model/Error.h"
#include "model/RecordFields.h"

#include <QStringList>

#include <simdjson.h>

namespace tarnloft {

// Walks a parsed document into records by their tables of fields. The path of a failure is put
// together only while it unwinds, so a good document pays nothing for it. A header of its own so
// that other folders can read records of theirs with it; include it in sources only.
class JsonReader {
 public:
  using Element = simdjson::dom::element;

  // Every value that is read into must be fresh: what the document doesn't name stays as it is.
  template <Record R>
  bool read(Element element, R& record) {
    simdjson::dom::object object;
    if (element.get(object) != simdjson::SUCCESS) return fail("expected an object");
    FieldSet seen = 0;
    for (const auto [key, content] : object) {
      if (!readField(key, content, record, seen)) return false;
    }
    return requireAll<R>(seen);
  }

  template <class T>
  bool read(Element element, QList<T>& list) {
    simdjson::dom::array array;
    if (element.get(array) == simdjson::SUCCESS) list.reserve(qsizetype(array.size()));
    return readElements(element, list);
  }
  template <class T>
  bool read(Element element, SharedList<T>& list) {
    return readElements(element, list);
  }
  template <class T>
  bool read(Element element, std::optional<T>& content) {
    if (element.is_null()) {
      content.reset();
      return true;
    }
    return read(element, content.emplace());
  }
  template <TabledEnum E>
  bool read(Element element, E& enumeration) {
    std::string_view text;
    if (element.get(text) != simdjson::SUCCESS) return fail("expected a string");
    const auto known = fromRawValue<E>(text);
    if (!known) return fail("unknown value");
    enumeration = *known;
    return true;
  }
  bool read(Element element, ItemPayload& payload);
  bool read(Element element, QString& text);
  bool read(Element element, QUuid& id);
  bool read(Element element, Timestamp& moment);
  bool read(Element element, qint64& number);
  bool read(Element element, double& number);

  // Why the last `read` gave false.
  Error error() const;

 private:
  using FieldSet = quint32;  // one bit for each field, by its position in the table

  template <Record R>
  static constexpr size_t fieldCount = std::tuple_size_v<decltype(RecordFields<R>::fields)>;

  template <Record R>
  bool readField(std::string_view key, Element content, R& record, FieldSet& seen) {
    static_assert(fieldCount<R> <= 32);
    bool good = true;
    FieldSet bit = 1;
    const auto tryField = [&](const auto& field) {
      if (field.key != key) {
        bit <<= 1;
        return false;
      }
      if (seen & bit) renew(record.*(field.member));  // a repeated key: the last counts
      seen |= bit;
      good = read(content, record.*(field.member)) || at(key);
      return true;
    };
    std::apply([&](const auto&... field) { (tryField(field) || ...); }, RecordFields<R>::fields);
    return good;
  }

  template <class T>
  static void renew(T& value) {
    value = T();
  }

  template <class R, class T>
  static constexpr bool isOptional(Field<R, std::optional<T>>) {
    return true;
  }
  template <class R, class T>
  static constexpr bool isOptional(Field<R, T>) {
    return false;
  }

  template <Record R>
  bool requireAll(FieldSet seen) {
    FieldSet bit = 1;
    bool complete = true;
    forEachField<R>([&](const auto& field) {
      if (complete && !isOptional(field) && !(seen & bit)) {
        fail("missing");
        at(field.key);
        complete = false;
      }
      bit <<= 1;
    });
    return complete;
  }

  template <class List>
  bool readElements(Element element, List& list) {
    simdjson::dom::array array;
    if (element.get(array) != simdjson::SUCCESS) return fail("expected a list");
    for (const Element entry : array) {
      if (!read(entry, list.emplaceBack())) return at(list.size() - 1);
    }
    return true;
  }

  template <size_t Index = 0>
  bool readCase(size_t index, Element content, ItemPayload& payload) {
    if constexpr (Index < std::variant_size_v<ItemPayload>) {
      if (index == Index) return read(content, payload.emplace<Index>());
      return readCase<Index + 1>(index, content, payload);
    } else {
      return false;
    }
  }

  // All give false, so that a failing read can end in them.
  bool fail(const char* reason);
  bool at(std::string_view key);
  bool at(qsizetype index);

  const char* reason_ = "";
  QStringList path_;  // innermost first
};

}  // namespace tarnloft
