#pragma once

#include "platform/Images.h"

// The form of a dragged picture for receivers that take picture data and no files.
namespace tarnloft::TiffFlavour {

// The picture as TIFF in its own size, or smaller where that takes more than so many bytes. None if
// it can't be read. Slow: it decodes the whole picture, perhaps more than once. Any thread.
std::optional<QByteArray> make(Images& images, const QString& path, qint64 maxBytes);

}  // namespace tarnloft::TiffFlavour
