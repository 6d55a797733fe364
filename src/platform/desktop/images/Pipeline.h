#pragma once

#include <QSize>

#include <vips/vips8>

namespace tarnloft {

// The steps between decoding and writing. All throw `vips::VError`.
namespace Pipeline {

// The picture stretched to `size` with care, in sRGB: 8 bits a component, three of them and
// perhaps a transparency. Colours of a file with a profile are those that the profile tells.
vips::VImage render(const vips::VImage& image, QSize size);

}  // namespace Pipeline

}  // namespace tarnloft
