// The manifest reader on any bytes: it never crashes, and what it takes survives being written.
#include "model/Json.h"
#include "model/RecordHash.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  const QByteArray json(reinterpret_cast<const char*>(data), qsizetype(size));
  const auto brand = decode<Brand>(json);
  if (!brand) {
    if (brand.error().message.isEmpty()) std::abort();
    return 0;
  }
  const auto written = encode(*brand);
  if (!written) std::abort();
  const auto again = decode<Brand>(*written);
  if (!again || *again != *brand || qHash(*again) != qHash(*brand)) std::abort();
  if (*encode(*again) != *written) std::abort();
  return 0;
}
