#pragma once

#include "model/Error.h"
#include "model/RecordFields.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QStringEncoder>

namespace tarnloft {

// Writes records in the exact layout of the files on disk: two-space indent, `"key" : value`, keys
// in the order of their table, `\/`, UTF-8, no line feed at the end. One writer writes one
// document.
class JsonWriter {
 public:
  JsonWriter();

  template <Record R>
  void value(const R& record) {
    open('{');
    forEachField<R>([&](const auto& field) { member(field.key, record.*(field.member)); });
    close('}');
  }
  template <class T>
  void value(const QList<T>& list) {
    elements(list);
  }
  template <class T>
  void value(const SharedList<T>& list) {
    elements(list);
  }
  template <TabledEnum E>
  void value(E enumeration) {
    quotedAscii(rawValue(enumeration));
  }
  void value(const ItemPayload& payload);
  void value(const QString& text);
  void value(const QUuid& id);
  // A moment without a written form fails the document.
  void value(Timestamp moment);
  void value(qint64 number);
  // Shortest digits that read back as the same number. One that is not finite fails the document.
  void value(double number);

  // The document's bytes, once its root value is written.
  Result<QByteArray> finish();

 private:
  template <class T>
  void member(std::string_view key, const T& content) {
    startMember(key);
    value(content);
  }
  template <class T>
  void member(std::string_view key, const std::optional<T>& content) {
    if (content) member(key, *content);
  }
  template <class List>
  void elements(const List& list) {
    open('[');
    for (const auto& element : list) {
      nextLine();
      value(element);
    }
    close(']');
  }

  void open(char bracket);
  void close(char bracket);
  void nextLine();
  void startMember(std::string_view key);
  void quotedAscii(std::string_view text);

  // Each writes at `out` and gives the place behind it.
  char* lineFeed(char* out);
  char* separator(char* out);
  static char* escaped(char* out, char16_t unit);

  // At least so many bytes to write into; what is written is told by setting `end_`.
  char* room(qsizetype bytes) {
    if (limit_ - end_ < bytes) grow(bytes);
    return end_;
  }
  void grow(qsizetype bytes);

  QByteArray bytes_;
  char* end_ = nullptr;          // behind what is written
  const char* limit_ = nullptr;  // behind the buffer
  int depth_ = 0;
  bool first_ = true;                 // no member or element yet at the present depth
  const char* unwritable_ = nullptr;  // why the document fails
  QStringEncoder utf8_;
};

}  // namespace tarnloft
