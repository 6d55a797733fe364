#include "platform/desktop/decoding/CagedVideos.h"

#include "platform/desktop/decoding/DecodedPicture.h"

#include <cmath>

namespace tarnloft {

using namespace decoding;

namespace {

constexpr DecoderPool::Patience patience{std::chrono::seconds(25), std::chrono::seconds(20)};

std::unique_ptr<OpenedFile> openClip(DecoderPool& decoders, const QString& path) {
  const auto file = posix::openRegularFile(path);
  return file ? decoders.open(Role::clips, file->file, {}, patience) : nullptr;
}

}  // namespace

std::optional<VideoProperties> CagedVideos::properties(const QString& path) {
  const auto clip = openClip(*decoders_, path);
  if (!clip) return std::nullopt;
  const Facts& facts = clip->facts();
  VideoProperties properties;
  if (std::isfinite(facts.duration) && facts.duration >= 0) properties.duration = facts.duration;
  if (facts.width > 0 && facts.height > 0) properties.size = QSize(facts.width, facts.height);
  return properties;
}

std::optional<QImage> CagedVideos::frame(const QString& path, double seconds, int maxPixel) {
  const auto clip = openClip(*decoders_, path);
  if (!clip || maxPixel < 1 || maxPixel > limits::side) return std::nullopt;
  const auto side = std::uint64_t(maxPixel);
  return drawn(*clip, {.action = Action::draw, .width = maxPixel, .seconds = seconds},
               side * side * 4, clip->facts().needs);
}

}  // namespace tarnloft
