#pragma once

#include "platform/desktop/decoding/Protocol.h"

#include <QImage>

#include <cstddef>
#include <optional>
#include <span>
#include <vips/vips8>

// Pictures of libvips as pictures of the toolkit and back. All throw `vips::VError`.
namespace tarnloft::QtView {

// An 8-bit picture in sRGB, its orientation applied, as pixels in the target; none if there is too
// little room.
std::optional<decoding::Product> write(const vips::VImage& image, std::span<std::byte> target);

// The pixels of a picture of four bytes a pixel, RGBA or RGBX; they must live on.
vips::VImage of(const QImage& image);

}  // namespace tarnloft::QtView
