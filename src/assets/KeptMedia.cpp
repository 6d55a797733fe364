#include "assets/KeptMedia.h"

#include <algorithm>

namespace tarnloft {
namespace {

using Maker = ThumbnailStore::Maker;
using Size = ThumbnailStore::Size;

QImage within(const QImage& image, int maxPixel) {
  if (std::max(image.width(), image.height()) <= maxPixel) return image;
  return image.scaled(maxPixel, maxPixel, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

std::optional<ImageProperties> KeptImages::properties(const QString& path) {
  return images_.properties(path);
}

std::optional<QSizeF> KeptImages::vectorSize(const QString& path) {
  return images_.vectorSize(path);
}

// The kept picture is made in one step from the file, and the wanted one from that.
std::optional<QImage> KeptImages::thumbnail(const QString& path, int maxPixel) {
  if (maxPixel > int(Size::xLarge)) return images_.thumbnail(path, maxPixel);
  const Size size = maxPixel <= int(Size::large) ? Size::large : Size::xLarge;
  if (const auto kept = store_.find(path, size, Maker::anyProgram)) return within(*kept, maxPixel);
  const auto made = images_.thumbnail(path, int(size));
  if (!made) return std::nullopt;
  store_.keep(path, size, *made);
  return within(*made, maxPixel);
}

std::optional<QByteArray> KeptImages::convert(const QString& path, ExportFormat format, QSize size,
                                              double quality) {
  return images_.convert(path, format, size, quality);
}

std::optional<VideoProperties> KeptVideos::properties(const QString& path) {
  return videos_.properties(path);
}

std::optional<QImage> KeptVideos::frame(const QString& path, double seconds, int maxPixel) {
  const bool isPoster = seconds == posterSeconds && maxPixel == posterPixels;
  if (!isPoster) return videos_.frame(path, seconds, maxPixel);
  if (auto kept = store_.find(path, Size::xLarge, Maker::thisProgram)) return kept;
  auto made = videos_.frame(path, seconds, maxPixel);
  if (made) store_.keep(path, Size::xLarge, *made);
  return made;
}

}  // namespace tarnloft
