#pragma once

#include "platform/desktop/images/ImageFile.h"

#include <QSize>

#include <vips/vips8>

namespace tarnloft {

// Reads bitmap files by libvips. Pixels are decoded while the result is written somewhere, from top
// to bottom, so most files are never in memory whole. All throw `vips::VError`.
namespace BitmapDecoder {

// The first picture, of which nothing is decoded yet.
vips::VImage header(const ImageFile& file);

// The pixels that are in memory at once, in bytes: next to none where rows stream.
std::uint64_t footprint(ImageKind kind, const vips::VImage& header);

// How often the decoder has them, in one form or another; measured.
int copiesOf(ImageKind kind);

// The first picture, to be decoded at a size of at least `target`, which is smaller than its own
// where the format can scale while it decodes. Takes the place of its header.
vips::VImage load(const ImageFile& file, const vips::VImage& header, QSize target);

}  // namespace BitmapDecoder

}  // namespace tarnloft
