#include "platform/desktop/clips/LibavClip.h"
#include "platform/desktop/clips/LibavPicture.h"
#include "platform/desktop/decoding/worker/FileDecoder.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <cstring>

extern "C" {
#include <libavutil/common.h>
}

namespace tarnloft {

using namespace libav;

namespace {

using namespace decoding;

constexpr std::chrono::seconds mostTime{10};

double durationOf(const AVFormatContext& format) {
  const bool isKnown = format.duration != AV_NOPTS_VALUE && format.duration >= 0;
  return isKnown ? double(format.duration) / AV_TIME_BASE : -1;
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

class ClipFile : public ForeignFile {
 public:
  explicit ClipFile(std::unique_ptr<Clip> clip) : clip_(std::move(clip)) {}

  Facts facts() override {
    // Of a codec with as many pictures as any refers to, at 10 bits.
    constexpr std::uint64_t pictures = 20, bytesEach = 3, others = 64 * limits::megabyte;
    Facts facts;
    facts.duration = durationOf(clip_->format());
    const AVStream* const stream = clip_->videoStream();
    if (!stream || stream->codecpar->width < 1 || stream->codecpar->height < 1) return facts;
    facts.width = stream->codecpar->width;
    facts.height = stream->codecpar->height;
    const auto pixels = std::uint64_t(facts.width) * std::uint64_t(facts.height);
    facts.needs = std::min(others + pixels * bytesEach * pictures, limits::mostMemory);
    return facts;
  }

  // A frame is shown as a player would: with square pixels, whatever the shape of the stored ones,
  // and in the turn of the track. The stored size is neither.
  std::optional<Product> make(const Request& request, std::span<std::byte> target) override {
    AVStream* const stream = clip_->videoStream();
    if (request.action != Action::draw || !stream) return std::nullopt;
    const Frame frame = decodeFrame(*clip_, *stream, request.seconds);
    if (!frame) return std::nullopt;
    const AVRational shape = av_guess_sample_aspect_ratio(&clip_->format(), stream, frame.get());
    const QSize size = shownSize(QSize(frame->width, frame->height), shape, request.width);
    const auto picture = PictureMaker().pictureOf(*frame, size);
    if (!picture) return std::nullopt;
    const QImage shown =
        oriented(*picture, orientationOf(*stream))
            .convertToFormat(picture->hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                        : QImage::Format_RGB32);
    const auto bytes = size_t(shown.sizeInBytes());  // rows of 4-byte pixels have no padding
    if (bytes > target.size()) return std::nullopt;
    std::memcpy(target.data(), shown.constBits(), bytes);
    return Product{shown.width(), shown.height(), shown.hasAlphaChannel(), bytes};
  }

 private:
  std::unique_ptr<Clip> clip_;
};

class ClipDecoding : public FileDecoder {
 public:
  void prepare() override {}

  std::unique_ptr<ForeignFile> open(const Request&, int descriptor) override {
    posix::OpenFile file{posix::Descriptor(::dup(descriptor)), {}};
    if (::fstat(file.file.number(), &file.info) != 0) return nullptr;
    auto clip = Clip::open(std::move(file),
                           [deadline = QDeadlineTimer(mostTime)] { return deadline.hasExpired(); });
    return clip ? std::make_unique<ClipFile>(std::move(clip)) : nullptr;
  }
};

}  // namespace

FileDecoder& decoding::moduleDecoder() {
  static ClipDecoding decoder;
  return decoder;
}

}  // namespace tarnloft
