// Font files of any bytes: reading them and trying them out never crashes, and names are never
// empty.
#include "Decoding.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft::decoding;
  FuzzedFile file(data, size);
  const auto names = file.make({.action = Action::names}, 64 << 10);
  if (names && names->bytes < 2) std::abort();
  file.make({.action = Action::faces}, 2 * size + 1024);
  file.make({.action = Action::tryOut}, 1);
  return 0;
}
