#pragma once

#include "platform/Images.h"

// Turns a picture file into bytes of another format and size. Keeps no state; any thread.
namespace tarnloft::ImageExporter {

// In pixels for a picture of pixels, its orientation not applied; in points for a vector file.
std::optional<QSizeF> nativeSize(Images& images, const QString& path);

// The picture stretched to `pixelSize`, each side rounded to nearest and at least 1; `quality` is
// from 0 to 1. A side that is not finite or that doesn't fit 64 bits is a programming error. Slow:
// it decodes the whole picture.
std::optional<QByteArray> exportImage(Images& images, const QString& path, ExportFormat format,
                                      QSizeF pixelSize, double quality);

}  // namespace tarnloft::ImageExporter
