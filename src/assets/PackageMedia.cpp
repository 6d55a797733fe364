#include "assets/PackageMedia.h"

#include "document/Package.h"

namespace tarnloft {
namespace {

// The package is the folder around the asset's.
bool isInPackage(const FileStore& files, const QString& path) {
  return files.standsInside(path, Package::folderOf(Package::folderOf(path)));
}

}  // namespace

std::optional<ImageProperties> PackageImages::properties(const QString& path) {
  return isInPackage(files_, path) ? images_.properties(path) : std::nullopt;
}

std::optional<QSizeF> PackageImages::vectorSize(const QString& path) {
  return isInPackage(files_, path) ? images_.vectorSize(path) : std::nullopt;
}

std::optional<QImage> PackageImages::thumbnail(const QString& path, int maxPixel) {
  return isInPackage(files_, path) ? images_.thumbnail(path, maxPixel) : std::nullopt;
}

std::optional<QByteArray> PackageImages::convert(const QString& path, ExportFormat format,
                                                 QSize size, double quality) {
  return isInPackage(files_, path) ? images_.convert(path, format, size, quality) : std::nullopt;
}

std::optional<VideoProperties> PackageVideos::properties(const QString& path) {
  return isInPackage(files_, path) ? videos_.properties(path) : std::nullopt;
}

std::optional<QImage> PackageVideos::frame(const QString& path, double seconds, int maxPixel) {
  return isInPackage(files_, path) ? videos_.frame(path, seconds, maxPixel) : std::nullopt;
}

std::unique_ptr<ClipPlayer> PackageClipPlayers::open(const ClipSource& source,
                                                     std::function<void()> changed) {
  const auto isAllowed = [&files = files_, source] {
    return isInPackage(files, source.path) && (!source.isAllowed || source.isAllowed());
  };
  return players_.open({source.path, isAllowed}, std::move(changed));
}

}  // namespace tarnloft
