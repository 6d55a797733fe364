#pragma once

#include <QSize>

#include <chrono>
#include <vips/vips8>

namespace tarnloft {

// The steps between decoding and writing. All throw `vips::VError`.
namespace Pipeline {

// The picture stretched to `size` with care, in sRGB: 8 bits a component, three of them and
// perhaps a transparency. Colours of a file with a profile are those that the profile tells.
vips::VImage render(const vips::VImage& image, QSize size);

// Ends the writing of `image` with an error when it has run for so long.
void limitTime(vips::VImage& image, std::chrono::seconds time);

}  // namespace Pipeline

}  // namespace tarnloft
