#pragma once

#include "platform/desktop/decoding/DecoderPool.h"

#include <QImage>

namespace tarnloft::decoding {

// The picture that the request gives, of so many bytes at most; none if there is none.
std::optional<QImage> drawn(OpenedFile& file, const Request& request, std::uint64_t bytes,
                            std::uint64_t needs);

}  // namespace tarnloft::decoding
