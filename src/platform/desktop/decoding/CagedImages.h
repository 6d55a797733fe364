#pragma once

#include "platform/Images.h"
#include "platform/desktop/decoding/DecoderPool.h"
#include "platform/desktop/images/ImageKind.h"

namespace tarnloft {

// Pictures that decoders read. What a file holds is told by its content, never by its name.
class CagedImages : public Images {
 public:
  explicit CagedImages(std::shared_ptr<decoding::DecoderPool> decoders)
      : decoders_(std::move(decoders)) {}

  std::optional<ImageProperties> properties(const QString& path) override;
  std::optional<QSizeF> vectorSize(const QString& path) override;
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override;
  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override;

 private:
  const std::shared_ptr<decoding::DecoderPool> decoders_;
};

}  // namespace tarnloft
