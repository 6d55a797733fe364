// Font files of any bytes: reading them never crashes, and names are never empty.
#include "MemoryFile.h"
#include "platform/desktop/fonts/FreeTypeFonts.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  const MemoryFile file(data, size);
  const auto names = FreeTypeFonts().names(file.path());
  if (names && (names->family.isEmpty() || (names->style && names->style->isEmpty()))) std::abort();
  return 0;
}
