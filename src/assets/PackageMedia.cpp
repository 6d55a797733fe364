#include "assets/PackageMedia.h"

#include "document/Package.h"

namespace tarnloft {

// The package is the folder around the asset's.
bool PackageMediaSource::allows(const QString& path) const {
  const QString package = Package::folderOf(Package::folderOf(path));
  return !plain.contains(package) && files.standsInside(path, package);
}

std::optional<ImageProperties> PackageImages::properties(const QString& path) {
  return source_.allows(path) ? images_.properties(path) : std::nullopt;
}

std::optional<QSizeF> PackageImages::vectorSize(const QString& path) {
  return source_.allows(path) ? images_.vectorSize(path) : std::nullopt;
}

std::optional<QImage> PackageImages::thumbnail(const QString& path, int maxPixel) {
  return source_.allows(path) ? images_.thumbnail(path, maxPixel) : std::nullopt;
}

std::optional<QByteArray> PackageImages::convert(const QString& path, ExportFormat format,
                                                 QSize size, double quality) {
  return source_.allows(path) ? images_.convert(path, format, size, quality) : std::nullopt;
}

std::optional<VideoProperties> PackageVideos::properties(const QString& path) {
  return source_.allows(path) ? videos_.properties(path) : std::nullopt;
}

std::optional<QImage> PackageVideos::frame(const QString& path, double seconds, int maxPixel) {
  return source_.allows(path) ? videos_.frame(path, seconds, maxPixel) : std::nullopt;
}

std::unique_ptr<ClipPlayer> PackageClipPlayers::open(const ClipSource& source,
                                                     std::function<void()> changed) {
  const auto isAllowed = [from = source_, source] {
    return from.allows(source.path) && (!source.isAllowed || source.isAllowed());
  };
  return players_.open({source.path, isAllowed}, std::move(changed));
}

}  // namespace tarnloft
