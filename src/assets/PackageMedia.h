#pragma once

#include "library/PlainBrands.h"
#include "platform/ClipPlayer.h"
#include "platform/FileStore.h"
#include "platform/Images.h"
#include "platform/Videos.h"

namespace tarnloft {

// Where such files are, and which may be read.
struct PackageMediaSource {
  const FileStore& files;
  const PlainBrands& plain;

  bool allows(const QString& path) const;
};

// Pictures of packages' assets, named by their paths: a file that leads out of its package counts
// as one that can't be read. The disk is asked here, where the file is read, because whoever shows
// a picture must not wait for it. So do the files of a brand that is shown without them. Borrows
// what it is given; any thread.
class PackageImages : public Images {
 public:
  PackageImages(const FileStore& files, Images& images, const PlainBrands& plain)
      : source_{files, plain}, images_(images) {}

  std::optional<ImageProperties> properties(const QString& path) override;
  std::optional<QSizeF> vectorSize(const QString& path) override;
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override;
  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override;

 private:
  const PackageMediaSource source_;
  Images& images_;
};

// The same for clips.
class PackageVideos : public Videos {
 public:
  PackageVideos(const FileStore& files, Videos& videos, const PlainBrands& plain)
      : source_{files, plain}, videos_(videos) {}

  std::optional<VideoProperties> properties(const QString& path) override;
  std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) override;

 private:
  const PackageMediaSource source_;
  Videos& videos_;
};

// The same for clips that are played, by whom the disk is asked too. Main thread.
class PackageClipPlayers : public ClipPlayers {
 public:
  PackageClipPlayers(const FileStore& files, ClipPlayers& players, const PlainBrands& plain)
      : source_{files, plain}, players_(players) {}

  std::unique_ptr<ClipPlayer> open(const ClipSource& source,
                                   std::function<void()> changed) override;
  bool finish(std::chrono::milliseconds patience) override { return players_.finish(patience); }

 private:
  const PackageMediaSource source_;
  ClipPlayers& players_;
};

}  // namespace tarnloft
