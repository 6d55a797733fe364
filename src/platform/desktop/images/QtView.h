#pragma once

#include <QImage>

#include <vips/vips8>

// Pictures of the one library as pictures of the other. All throw `vips::VError`.
namespace tarnloft::QtView {

// An 8-bit picture in sRGB, its orientation applied, in a form quick to draw.
QImage toQImage(const vips::VImage& image);

// The pixels of a picture of four bytes a pixel, RGBA or RGBX; they must live on.
vips::VImage of(const QImage& image);

}  // namespace tarnloft::QtView
