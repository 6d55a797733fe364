// Picture files of any bytes: none crashes the readers, and what they give is within its bounds.
#include "Decoding.h"
#include "platform/desktop/images/ImageKind.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  using namespace tarnloft::decoding;
  constexpr std::int64_t mostPixels = 16 << 20;  // nothing bounds the memory here
  constexpr std::int32_t jpeg = 1;
  const auto kind = imageKindOf({reinterpret_cast<const char*>(data), size});
  if (!kind || *kind == ImageKind::svg || *kind == ImageKind::pdf) return 0;
  FuzzedFile file(data, size, {.kind = std::int32_t(*kind)});
  const auto facts = file.facts();
  if (!facts) return 0;
  if (facts->width < 1 || facts->height < 1) std::abort();
  if (std::int64_t(facts->width) * facts->height > mostPixels) return 0;
  file.make({.action = Action::draw, .width = 64, .height = 48}, 64 * 64 * 4);
  file.make({.action = Action::encode, .width = 20, .height = 10, .format = jpeg, .quality = 0.5},
            1 << 20);
  return 0;
}
