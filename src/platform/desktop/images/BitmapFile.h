#pragma once

#include "platform/desktop/decoding/worker/FileDecoder.h"
#include "platform/desktop/images/ImageFile.h"

#include <QSize>

#include <vips/vips8>

namespace tarnloft {

// A picture of pixels that is open in a decoder: by libvips, or by the toolkit where libvips reads
// only unsafely. All but the making throw `vips::VError`.
std::unique_ptr<decoding::ForeignFile> openBitmap(const ImageFile& file);

// The same of plain pixels, `ImageKind::pixels`.
std::unique_ptr<decoding::ForeignFile> openPixels(int descriptor, QSize size);

}  // namespace tarnloft
