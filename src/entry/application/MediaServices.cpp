#include "entry/application/MediaServices.h"

namespace tarnloft {

std::optional<QByteArray> MediaServices::tiff(const QString& path, qint64 maxBytes) {
  constexpr qint64 pixelBytes = 4;
  const auto properties = images.properties(path);
  if (!properties) return std::nullopt;
  const QSize size = properties->size;
  if (pixelBytes * size.width() * size.height() > maxBytes) return std::nullopt;
  return images.convert(path, ExportFormat::tiff, size, 1);
}

}  // namespace tarnloft
