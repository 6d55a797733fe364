// Clips of any bytes: reading them never crashes, and a picture is no larger than it was asked for.
#include "MemoryFile.h"
#include "platform/desktop/clips/LibavVideos.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace tarnloft;
  const MemoryFile file(data, size);
  const auto properties = LibavVideos().properties(file.path());
  if (properties && properties->duration && !(*properties->duration >= 0)) std::abort();
  if (properties && properties->size && properties->size->isEmpty()) std::abort();
  const auto picture = LibavVideos().frame(file.path(), 0.1, 32);
  if (!picture) return 0;
  if (picture->isNull() || picture->width() > 32 || picture->height() > 32) std::abort();
  return properties && properties->size ? 0 : (std::abort(), 1);
}
