#include "model/Json.h"

#include "model/JsonDocument.h"
#include "model/JsonReader.h"
#include "model/JsonWriter.h"

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

#define TARNLOFT_CODED(Type)                             \
  template Result<Type> decode<Type>(const QByteArray&); \
  template Result<QByteArray> encode<Type>(const Type&);

TARNLOFT_CODED(Brand)
TARNLOFT_CODED(Section)
TARNLOFT_CODED(Item)
TARNLOFT_CODED(Emblem)
TARNLOFT_CODED(AssetRef)
TARNLOFT_CODED(ColorValue)
TARNLOFT_CODED(GradientValue)
TARNLOFT_CODED(FontValue)
TARNLOFT_CODED(CodeValue)
TARNLOFT_CODED(LogoValue)
TARNLOFT_CODED(UsageNote)

#undef TARNLOFT_CODED

}  // namespace tarnloft
