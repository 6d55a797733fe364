#include "assets/TiffFlavour.h"

#include "assets/ImageExporter.h"

#include <cmath>

namespace tarnloft::TiffFlavour {
namespace {

// The size with so many times its pixels, and never more than it has.
QSizeF shrunk(QSizeF size, double ratio) { return size * std::sqrt(std::min(ratio, 1.0)); }

}  // namespace

std::optional<QByteArray> make(Images& images, const QString& path, qint64 maxBytes) {
  const auto native = ImageExporter::nativeSize(images, path);
  if (!native) return std::nullopt;
  // Few pictures take less than a byte a pixel: one of more pixels isn't worth a try.
  QSizeF size = shrunk(*native, double(maxBytes) / (native->width() * native->height()));
  for (int attempts = 0; attempts < 4; ++attempts) {
    auto tiff = ImageExporter::exportImage(images, path, ExportFormat::tiff, size, 1);
    if (!tiff || tiff->size() <= maxBytes) return tiff;
    size = shrunk(size, 0.9 * double(maxBytes) / double(tiff->size()));
  }
  return std::nullopt;
}

}  // namespace tarnloft::TiffFlavour
