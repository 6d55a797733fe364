#pragma once

#include "assets/BackgroundWork.h"
#include "assets/KeptMedia.h"
#include "assets/PackageMedia.h"
#include "assets/ThumbnailLoader.h"
#include "entry/late/LateServices.h"
#include "pictures/AssetSpecs.h"
#include "pictures/Posters.h"
#include "pictures/Thumbnails.h"
#include "platform/desktop/decoding/CagedImages.h"
#include "platform/desktop/decoding/CagedVideos.h"
#include "platform/desktop/thumbnails/SharedThumbnails.h"

namespace tarnloft {

// Pictures and clips, and the one place that keeps their thumbnails. Nothing of it is loaded before
// the first file is asked for.
struct MediaServices {
  MediaServices(const FileStore& files, const std::shared_ptr<decoding::DecoderPool>& decoders,
                const PlainBrands& plain)
      : cagedImages(decoders),
        cagedVideos(decoders),
        images(files, keptImages, plain),
        videos(files, keptVideos, plain),
        clipPlayers(files, lateClipPlayers, plain),
        specs(files, images, videos, work) {}

  CagedImages cagedImages;
  CagedVideos cagedVideos;
  LateClipPlayers lateClipPlayers;
  SharedThumbnails sharedThumbnails;
  KeptImages keptImages{cagedImages, sharedThumbnails};
  KeptVideos keptVideos{cagedVideos, sharedThumbnails};
  PackageImages images;
  PackageVideos videos;
  PackageClipPlayers clipPlayers;
  BackgroundWork work;
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  Posters posters{videos, work};
  AssetSpecs specs;
};

}  // namespace tarnloft
