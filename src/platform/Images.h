#pragma once

#include "model/ExportFormat.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <optional>

namespace tarnloft {

// What a picture file tells of itself.
struct ImageProperties {
  QSize size;  // pixels as stored, orientation not applied
  bool hasAlpha = false;
  std::optional<double> dpi;  // horizontal
};

// Reads and writes pictures. Files are foreign: a broken or hostile one is an absent result, takes
// bounded memory and time, and nothing outside of the file is read. Any thread, several at a time.
class Images {
 public:
  virtual ~Images() = default;

  // Of a file's first picture, without decoding it. A document's first page counts as one of 72
  // pixels an inch; a scalable drawing has none.
  virtual std::optional<ImageProperties> properties(const QString& path) = 0;

  // The size that a drawing or a document's first page claims for itself, in points.
  virtual std::optional<QSizeF> vectorSize(const QString& path) = 0;

  // A picture whose longer side is at most `maxPixel` (a vector is drawn at that size), upright, in
  // sRGB. A large file is never decoded whole where its format allows. Never enlarges a bitmap.
  virtual std::optional<QImage> thumbnail(const QString& path, int maxPixel) = 0;

  // The picture stretched to `size` pixels, in sRGB, 8 bits a component, in another format. JPEG
  // has white under what is transparent. `quality` from 0 to 1 counts for JPEG and HEIC. None also
  // where there is no encoder for the format.
  virtual std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                            double quality) = 0;
};

}  // namespace tarnloft
