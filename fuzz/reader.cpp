// The manifest reader on any bytes: it never crashes, what it takes survives being written, and
// looking at a document in place takes and refuses the same.
#include "model/Json.h"
#include "model/RecordHash.h"
#include "model/RecordView.h"
#include "model/Utf8.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  const QByteArray json(reinterpret_cast<const char*>(data), qsizetype(size));
  const auto brand = decode<Brand>(json);
  const auto view = RecordView<Brand>::parse(json);
  if (brand.has_value() != view.has_value()) std::abort();
  if (!brand) {
    if (brand.error().message.isEmpty() || view.error() != brand.error()) std::abort();
    return 0;
  }
  if (textFromUtf8(fieldOf<&Brand::name>(*view)) != brand->name) std::abort();
  if (valueOf<&Brand::sections>(*view) != brand->sections) std::abort();
  const auto written = encode(*brand);
  if (!written) std::abort();
  const auto again = decode<Brand>(*written);
  if (!again || *again != *brand || qHash(*again) != qHash(*brand)) std::abort();
  if (*encode(*again) != *written) std::abort();
  return 0;
}
