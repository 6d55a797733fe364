#pragma once

#include "model/JsonWalk.h"

#include <type_traits>

namespace tarnloft {

// Reads values of a parsed document as records and their members, or only checks that it could. A
// header of its own so that other folders can read records of theirs with it; include it in sources
// only. `error` tells why a reading or a check gave false.
class JsonReader : public JsonWalk {
 public:
  // Every value that is read into must be fresh: what the document doesn't name stays as it is.
  template <Record R>
  bool read(Element element, R& record) {
    return walkObject<R>(element, [&](auto place, Element content, Occurrence occurrence) {
      auto& value = record.*(fieldAt<R, place>.member);
      if (occurrence == Occurrence::repeated) renew(value);  // the last counts
      return read(content, value);
    });
  }
  template <class T>
  bool read(Element element, QList<T>& list) {
    simdjson::dom::array array;
    if (element.get(array) == simdjson::SUCCESS) list.reserve(qsizetype(array.size()));
    return walkArray(element, [&](Element entry) { return read(entry, list.emplaceBack()); });
  }
  template <class T>
  bool read(Element element, SharedList<T>& list) {
    return walkArray(element, [&](Element entry) { return read(entry, list.emplaceBack()); });
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
  bool read(Element element, ItemPayload& payload) {
    return walkPayload(element, [&](auto kind, Element content) {
      return read(content, payload.emplace<kind>());
    });
  }
  bool read(Element element, QString& text);
  bool read(Element element, QUuid& id);
  bool read(Element element, Timestamp& moment);
  bool read(Element element, qint64& number);
  bool read(Element element, double& number);

  // What `read` into a fresh record would give, without making one.
  template <Record R>
  bool check(Element element) {
    return check(element, Type<R>());
  }

 private:
  template <class T>
  struct Type {};

  template <Record R>
  bool check(Element element, Type<R>) {
    return walkObject<R>(element, [&](auto place, Element content, Occurrence) {
      return check(content, memberType(fieldAt<R, place>));
    });
  }
  template <class T>
  bool check(Element element, Type<QList<T>>) {
    return walkArray(element, [&](Element entry) { return check(entry, Type<T>()); });
  }
  template <class T>
  bool check(Element element, Type<SharedList<T>>) {
    return check(element, Type<QList<T>>());
  }
  template <class T>
  bool check(Element element, Type<std::optional<T>>) {
    return element.is_null() || check(element, Type<T>());
  }
  bool check(Element element, Type<ItemPayload>) {
    return walkPayload(element, [&](auto kind, Element content) {
      return check(content, Type<std::variant_alternative_t<kind, ItemPayload>>());
    });
  }
  bool check(Element element, Type<QString>) {
    return element.is_string() || fail("expected a string");
  }
  template <class T>
  bool check(Element element, Type<T>) {
    T small{};
    return read(element, small);
  }

  template <class R, class T>
  static constexpr Type<T> memberType(const Field<R, T>&) {
    return {};
  }
  template <class T>
  static void renew(T& value) {
    value = T();
  }
};

}  // namespace tarnloft
