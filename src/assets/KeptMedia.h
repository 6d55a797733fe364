#pragma once

#include "platform/Images.h"
#include "platform/ThumbnailStore.h"
#include "platform/Videos.h"

namespace tarnloft {

// Pictures whose thumbnails are kept between runs. All else is the other's. Borrows what it is
// given; any thread.
class KeptImages : public Images {
 public:
  KeptImages(Images& images, ThumbnailStore& store) : images_(images), store_(store) {}

  std::optional<ImageProperties> properties(const QString& path) override;
  std::optional<QSizeF> vectorSize(const QString& path) override;
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override;
  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override;

 private:
  Images& images_;
  ThumbnailStore& store_;
};

// The same for clips and their posters. Only our own are taken, as other programs choose other
// moments and draw on them.
class KeptVideos : public Videos {
 public:
  KeptVideos(Videos& videos, ThumbnailStore& store) : videos_(videos), store_(store) {}

  std::optional<VideoProperties> properties(const QString& path) override;
  std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) override;

 private:
  Videos& videos_;
  ThumbnailStore& store_;
};

}  // namespace tarnloft
