#include "platform/desktop/clips/LibavVideos.h"

#include "platform/desktop/clips/LibavPicture.h"

#include <algorithm>
#include <chrono>
#include <cmath>

extern "C" {
#include <libavutil/common.h>
}

namespace tarnloft {

using namespace libav;

namespace {

using namespace std::chrono_literals;

constexpr auto mostTime = 10s;

std::unique_ptr<Clip> openClip(const QString& path) {
  return Clip::open(path, QDeadlineTimer(mostTime));
}

std::optional<double> durationOf(const AVFormatContext& format) {
  if (format.duration == AV_NOPTS_VALUE || format.duration < 0) return std::nullopt;
  return double(format.duration) / AV_TIME_BASE;
}

std::optional<QSize> sizeOf(const AVStream* stream) {
  if (!stream) return std::nullopt;
  const QSize size(stream->codecpar->width, stream->codecpar->height);
  return size.isEmpty() ? std::nullopt : std::optional(size);
}

// Takes a decoder's frames until the one that is shown at a moment.
class FrameAtMoment {
 public:
  explicit FrameAtMoment(int64_t moment) : moment_(moment), next_(av_frame_alloc()) {}

  // Takes all frames that the decoder has for now; true once the one is found.
  bool takeFrom(AVCodecContext& decoder) {
    while (avcodec_receive_frame(&decoder, next_.get()) >= 0) {
      const int64_t begin = next_->best_effort_timestamp;
      const bool isPast = begin == AV_NOPTS_VALUE || begin > moment_;
      if (isPast && shown_) return true;
      shown_ = std::exchange(next_, Frame(av_frame_alloc()));
      if (isPast || av_sat_add64(begin, shown_->pkt_duration) > moment_) return true;
    }
    return false;
  }

  // Null if there was none; the last one if the clip ends before the moment.
  Frame take() { return std::move(shown_); }

 private:
  const int64_t moment_;
  Frame next_;
  Frame shown_;
};

Frame decodeFrame(Clip& clip, const AVStream& stream, double seconds) {
  const Decoder decoder = openDecoder(stream);
  if (!decoder) return nullptr;
  clip.keepOnly(stream);
  FrameAtMoment found(clip.timestampAt(seconds, stream));
  const Packet packet(av_packet_alloc());
  while (clip.read(*packet)) {
    if (packet->stream_index != stream.index) continue;
    avcodec_send_packet(decoder.get(), packet.get());  // what it can't read, it leaves out
    if (found.takeFrom(*decoder)) return found.take();
  }
  avcodec_send_packet(decoder.get(), nullptr);
  found.takeFrom(*decoder);
  return found.take();
}

}  // namespace

std::optional<VideoProperties> LibavVideos::properties(const QString& path) {
  const auto clip = openClip(path);
  if (!clip) return std::nullopt;
  return VideoProperties{durationOf(clip->format()), sizeOf(clip->videoStream())};
}

std::optional<QImage> LibavVideos::frame(const QString& path, double seconds, int maxPixel) {
  const auto clip = openClip(path);
  AVStream* const stream = clip ? clip->videoStream() : nullptr;
  if (!stream) return std::nullopt;
  const Frame frame = decodeFrame(*clip, *stream, seconds);
  if (!frame) return std::nullopt;
  const AVRational pixelShape = av_guess_sample_aspect_ratio(&clip->format(), stream, frame.get());
  const QSize size = shownSize(QSize(frame->width, frame->height), pixelShape, maxPixel);
  const auto picture = PictureMaker().pictureOf(*frame, size);
  if (!picture) return std::nullopt;
  return oriented(*picture, orientationOf(*stream));
}

}  // namespace tarnloft
