#pragma once

#include "platform/Videos.h"

namespace tarnloft {

// Reads clips through libavformat and libavcodec. A call takes some ten seconds at most. Without
// state.
//
// A frame is shown as a player would: with square pixels, whatever the shape of the stored ones,
// and in the turn of the track. The stored size is neither.
class LibavVideos : public Videos {
 public:
  std::optional<VideoProperties> properties(const QString& path) override;
  std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) override;
};

}  // namespace tarnloft
