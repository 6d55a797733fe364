#pragma once

#include "model/ItemTexts.h"
#include "model/JsonDocument.h"
#include "model/JsonReader.h"

namespace tarnloft {

template <Record R>
class RecordView;
template <class T>
class ListView;

// A payload in a document that was checked.
class PayloadView {
 public:
  explicit PayloadView(JsonReader::Element element) : element_(element) {}

  // Calls `visitor(kind, content)` with the position of the payload's case and a view of it.
  template <class Visitor>
  void visit(Visitor&& visitor) const {
    JsonReader().walkPayload(element_, [&](auto kind, JsonReader::Element content) {
      visitor(kind, RecordView<std::variant_alternative_t<kind, ItemPayload>>(content));
      return true;
    });
  }

 private:
  JsonReader::Element element_;
};

// How a member of type T is looked at in a document that was checked.
template <class T>
auto viewOf(JsonReader::Element element) {
  if constexpr (Record<T>) {
    return RecordView<T>(element);
  } else if constexpr (std::same_as<T, QString>) {
    return element.get_string().value_unsafe();
  } else if constexpr (std::same_as<T, ItemPayload>) {
    return PayloadView(element);
  } else {
    T value{};
    JsonReader().read(element, value);
    return value;
  }
}

// A record in a parsed document, checked once as a whole and then looked at where it stands: for
// those who need little of a large one. Cheap to copy. It lives until the same thread parses again,
// and so does all that `get` gives. Include it in sources only.
template <Record R>
class RecordView {
 public:
  // Refuses what `decode` refuses, with the same error.
  static Result<RecordView> parse(const QByteArray& json) {
    const auto root = parseJson(json);
    if (!root) return tl::unexpected(root.error());
    JsonReader reader;
    if (!reader.check<R>(*root)) return tl::unexpected(reader.error());
    return RecordView(*root);
  }

  // Of an element that was checked to be such a record.
  explicit RecordView(JsonReader::Element element) : object_(element.get_object().value_unsafe()) {}

  // The member without copying it: a text as its UTF-8, a record as a view, a list as a range of
  // views. Looks through the record's keys at each call.
  template <auto Member>
  auto get() const {
    return view(Member, find<placeOf<Member>()>());
  }

  // The member as the decoded record has it.
  template <auto Member>
  auto decoded() const {
    return decoded(Member, find<placeOf<Member>()>());
  }

 private:
  using Content = std::optional<JsonReader::Element>;

  template <auto Member>
  static constexpr size_t placeOf() {
    size_t place = 0, found = 0;
    forEachField<R>([&](const auto& field) {
      if constexpr (std::same_as<std::remove_cvref_t<decltype(field.member)>, decltype(Member)>) {
        if (field.member == Member) found = place;
      }
      ++place;
    });
    return found;
  }

  template <size_t Place>
  Content find() const {
    Content last;  // of a repeated key the last counts
    for (const auto [key, content] : object_) {
      if (JsonWalk::isKeyAt<R, Place>(key)) last = content;
    }
    return last;
  }

  template <class T>
  static auto view(T R::*, Content content) {
    return viewOf<T>(*content);
  }
  template <class T>
  static auto view(QList<T> R::*, Content content) {
    return ListView<T>(*content);
  }
  template <class T>
  static auto view(SharedList<T> R::*, Content content) {
    return ListView<T>(*content);
  }
  template <class T>
  static auto view(std::optional<T> R::*, Content content) {
    return content && !content->is_null() ? std::optional(viewOf<T>(*content)) : std::nullopt;
  }

  template <class T>
  static T decoded(T R::*, Content content) {
    T value{};
    if (content) JsonReader().read(*content, value);
    return value;
  }

  simdjson::dom::object object_;
};

// The entries of a list in a document that was checked.
template <class T>
class ListView {
 public:
  class Iterator {
   public:
    explicit Iterator(simdjson::dom::array::iterator place) : place_(place) {}
    auto operator*() const { return viewOf<T>(*place_); }
    Iterator& operator++() {
      ++place_;
      return *this;
    }
    bool operator!=(const Iterator& other) const { return place_ != other.place_; }

   private:
    simdjson::dom::array::iterator place_;
  };

  explicit ListView(JsonReader::Element element) : array_(element.get_array().value_unsafe()) {}
  Iterator begin() const { return Iterator(array_.begin()); }
  Iterator end() const { return Iterator(array_.end()); }

 private:
  simdjson::dom::array array_;
};

template <auto Member, Record R>
auto fieldOf(const RecordView<R>& view) {
  return view.template get<Member>();
}

template <auto Member, Record R>
auto valueOf(const RecordView<R>& view) {
  return view.template decoded<Member>();
}

}  // namespace tarnloft
