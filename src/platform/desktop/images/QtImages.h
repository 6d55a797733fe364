#pragma once

#include "platform/Images.h"
#include "platform/desktop/images/ImageFile.h"

namespace tarnloft {

// The kinds, whose bytes are given, that the toolkit reads, since libvips reads them only by a
// loader that it counts as unsafe.
namespace QtImages {

std::optional<ImageProperties> properties(const ImageFile& file, const QByteArray& bytes);
// 4 bytes a pixel, in the order of RGBA, transparency straight or unused.
std::optional<QImage> read(const ImageFile& file, const QByteArray& bytes);

}  // namespace QtImages

}  // namespace tarnloft
