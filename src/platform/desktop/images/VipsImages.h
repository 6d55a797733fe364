#pragma once

#include "platform/Images.h"
#include "platform/desktop/images/VectorDrawer.h"

#include <QSemaphore>

namespace tarnloft {

class ImageFile;

// Pictures by libvips; bitmaps that it reads only unsafely by the toolkit, vector files by a
// program of their own. What a file holds is told by its content, never by its name.
class VipsImages : public Images {
 public:
  // `vectorProgram` is the path of the program that draws vector files.
  explicit VipsImages(QString vectorProgram);

  std::optional<ImageProperties> properties(const QString& path) override;
  std::optional<QSizeF> vectorSize(const QString& path) override;
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override;
  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override;

 private:
  VectorDrawer vectors_;
  QSemaphore memory_;  // megabytes that all decoders together may need at once
};

}  // namespace tarnloft
