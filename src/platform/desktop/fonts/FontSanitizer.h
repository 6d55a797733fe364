#pragma once

#include "platform/desktop/decoding/DecoderPool.h"

namespace tarnloft {

// The font as the sanitizer that browsers use writes it anew, in a process that is shut in; none if
// it refuses it, or isn't installed. Any thread; waits.
std::optional<decoding::SharedMemory> sanitized(decoding::DecoderPool& decoders,
                                                const posix::Descriptor& font, qint64 size);

}  // namespace tarnloft
