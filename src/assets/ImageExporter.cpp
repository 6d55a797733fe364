#include "assets/ImageExporter.h"

#include "model/Rounding.h"

#include <limits>

namespace tarnloft::ImageExporter {
namespace {

// Sides beyond any picture stay so, for the encoders to refuse.
int pixels(double side) {
  return int(std::clamp<qint64>(rounded(side), 1, std::numeric_limits<int>::max()));
}

}  // namespace

std::optional<QSizeF> nativeSize(Images& images, const QString& path) {
  if (const auto properties = images.properties(path)) return QSizeF(properties->size);
  const auto size = images.vectorSize(path);
  return size && size->width() > 0 ? size : std::nullopt;
}

std::optional<QByteArray> exportImage(Images& images, const QString& path, ExportFormat format,
                                      QSizeF pixelSize, double quality) {
  const QSize size(pixels(pixelSize.width()), pixels(pixelSize.height()));
  return images.convert(path, format, size, quality);
}

}  // namespace tarnloft::ImageExporter
