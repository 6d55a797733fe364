#pragma once

#include "model/Json.h"
#include "model/JsonDocument.h"
#include "model/JsonReader.h"
#include "model/JsonWriter.h"

// The bodies of `decode` and `encode`, for the sources that make them for their records.
namespace tarnloft {

template <Record R>
using DecodedResult = Result<Decoded<R>>;

template <Record R>
Result<Decoded<R>> decodeNoting(const QByteArray& json) {
  const auto root = parseJson(json);
  if (!root) return tl::unexpected(root.error());
  JsonReader reader;
  Decoded<R> decoded;
  if (!reader.read(*root, decoded.record)) return tl::unexpected(reader.error());
  decoded.hasUnknownKeys = reader.hasUnknownKeys();
  return decoded;
}

template <Record R>
Result<R> decode(const QByteArray& json) {
  return decodeNoting<R>(json).map([](Decoded<R>&& decoded) { return std::move(decoded.record); });
}

template <Record R>
Result<QByteArray> encode(const R& record) {
  JsonWriter writer;
  writer.value(record);
  return writer.finish();
}

}  // namespace tarnloft

// Stands in namespace tarnloft.
#define TARNLOFT_CODED(Type)                                          \
  template Result<Type> decode<Type>(const QByteArray&);              \
  template DecodedResult<Type> decodeNoting<Type>(const QByteArray&); \
  template Result<QByteArray> encode<Type>(const Type&);
