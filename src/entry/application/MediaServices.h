#pragma once

#include "assets/BackgroundWork.h"
#include "assets/PackageMedia.h"
#include "assets/ThumbnailLoader.h"
#include "entry/late/LateServices.h"
#include "pictures/Posters.h"
#include "pictures/Thumbnails.h"

namespace tarnloft {

// Pictures and clips, and the one place that keeps their thumbnails. Nothing of it is loaded before
// the first file is asked for.
struct MediaServices {
  explicit MediaServices(const FileStore& files)
      : images(files, lateImages), videos(files, lateVideos), clipPlayers(files, lateClipPlayers) {}

  LateImages lateImages;
  LateVideos lateVideos;
  LateClipPlayers lateClipPlayers;
  PackageImages images;
  PackageVideos videos;
  PackageClipPlayers clipPlayers;
  BackgroundWork work;
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  Posters posters{videos, work};
};

}  // namespace tarnloft
