// Clips of any bytes: reading them never crashes, and a picture is no larger than it was asked for.
#include "Decoding.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft::decoding;
  FuzzedFile file(data, size);
  const auto facts = file.facts();
  if (facts && (facts->width < 0 || facts->height < 0 || facts->duration != facts->duration)) {
    std::abort();
  }
  const auto picture =
      file.make({.action = Action::draw, .width = 32, .seconds = 0.1}, 32 * 32 * 4);
  if (!picture) return 0;
  if (picture->width < 1 || picture->height < 1 || picture->width > 32 || picture->height > 32) {
    std::abort();
  }
  return facts && facts->width > 0 ? 0 : (std::abort(), 1);
}
