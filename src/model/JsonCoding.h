#pragma once

#include "model/Json.h"
#include "model/JsonDocument.h"
#include "model/JsonReader.h"
#include "model/JsonWriter.h"

// The bodies of `decode` and `encode`, for the sources that make them for their records.
namespace tarnloft {

template <Record R>
Result<R> decode(const QByteArray& json) {
  const auto root = parseJson(json);
  if (!root) return tl::unexpected(root.error());
  JsonReader reader;
  R record{};
  if (!reader.read(*root, record)) return tl::unexpected(reader.error());
  return record;
}

template <Record R>
Result<QByteArray> encode(const R& record) {
  JsonWriter writer;
  writer.value(record);
  return writer.finish();
}

}  // namespace tarnloft

// Stands in namespace tarnloft.
#define TARNLOFT_CODED(Type)                             \
  template Result<Type> decode<Type>(const QByteArray&); \
  template Result<QByteArray> encode<Type>(const Type&);
