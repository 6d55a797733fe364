#pragma once

#include "model/ExportFormat.h"

#include <QByteArray>

#include <vips/vips8>

namespace tarnloft {

// The file of a picture in sRGB, tagged as such, with nothing else of its source's metadata. JPEG
// has white under what is transparent. `quality` is from 0 to 1. Throws `vips::VError`, also where
// there is no encoder for the format.
QByteArray encodeImage(const vips::VImage& image, ExportFormat format, double quality);

}  // namespace tarnloft
