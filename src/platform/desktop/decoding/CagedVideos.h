#pragma once

#include "platform/Videos.h"
#include "platform/desktop/decoding/DecoderPool.h"

namespace tarnloft {

// Clips that decoders read. A call takes some ten seconds at most.
class CagedVideos : public Videos {
 public:
  explicit CagedVideos(std::shared_ptr<decoding::DecoderPool> decoders)
      : decoders_(std::move(decoders)) {}

  std::optional<VideoProperties> properties(const QString& path) override;
  std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) override;

 private:
  const std::shared_ptr<decoding::DecoderPool> decoders_;
};

}  // namespace tarnloft
