// Drawings and documents of any bytes: none crashes the readers.
#include "Decoding.h"
#include "platform/desktop/images/ImageKind.h"

// Kept for as long as the process lives: converters that are opened ahead, and the desktop's fonts.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:iconv_open\nleak:libfontconfig\n";
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  using namespace tarnloft::decoding;
  const auto kind = imageKindOf({reinterpret_cast<const char*>(data), size});
  if (kind != ImageKind::svg && kind != ImageKind::pdf) return 0;
  FuzzedFile file(data, size, {.kind = std::int32_t(*kind)});
  if (file.facts()) {
    file.make({.action = Action::draw, .width = 64, .height = 64}, 64 * 64 * 4);
  }
  return 0;
}
