#include "platform/desktop/fonts/FontSanitizer.h"

#include "platform/desktop/decoding/ChildProcess.h"

namespace tarnloft {

using namespace decoding;

// It has the file in memory, and the new one.
std::optional<SharedMemory> sanitized(DecoderPool& decoders, const posix::Descriptor& font,
                                      qint64 size) {
  constexpr std::chrono::seconds patience{20};
  const MemoryBudget::Share share(decoders.memory(),
                                  3 * std::uint64_t(size) + 16 * limits::megabyte);
  auto target = SharedMemory::growing();
  if (!target) return std::nullopt;
  const auto process = ChildProcess::start(decoders.program(), sanitizerName, font.number(),
                                           target->descriptor().number());
  const bool isDone = process && process->succeeds(patience) && target->size() > 0;
  return isDone ? std::move(target) : std::nullopt;
}

}  // namespace tarnloft
