#pragma once

#include "platform/desktop/files/PosixFiles.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

// The pieces that clips are read by.
namespace tarnloft::libav {

template <auto release>
struct ReleasePointed {
  template <class Object>
  void operator()(Object* object) const {
    release(&object);
  }
};

using Decoder = std::unique_ptr<AVCodecContext, ReleasePointed<avcodec_free_context>>;
using Format = std::unique_ptr<AVFormatContext, ReleasePointed<avformat_close_input>>;
using Frame = std::unique_ptr<AVFrame, ReleasePointed<av_frame_free>>;
using Packet = std::unique_ptr<AVPacket, ReleasePointed<av_packet_free>>;

struct ReleaseScaler {
  void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};
using Scaler = std::unique_ptr<SwsContext, ReleaseScaler>;

// Whether the time of some work is up; asked often, on the thread that works.
using Expiry = std::function<bool()>;

// The bytes of one open file, as libavformat reads them; none any more once the time is up.
class ByteSource {
 public:
  ByteSource(posix::OpenFile file, Expiry expiry);

  // Owned by this.
  AVIOContext* context() const { return context_.get(); }
  bool isExpired() const { return expiry_(); }

 private:
  static int read(void* self, uint8_t* buffer, int capacity);
  static int64_t seek(void* self, int64_t offset, int whence);

  struct ReleaseContext {
    void operator()(AVIOContext* context) const;
  };

  posix::OpenFile file_;
  Expiry expiry_;
  qint64 position_ = 0;
  std::unique_ptr<AVIOContext, ReleaseContext> context_;
};

// An open clip, whose streams are known. Work on it ends when its time is up. One thread at a time.
class Clip {
 public:
  // Null if the file is none of the containers that are taken, or if the time is up before its
  // streams are known.
  static std::unique_ptr<Clip> open(posix::OpenFile file, Expiry expiry);
  static std::unique_ptr<Clip> open(const QString& path, Expiry expiry);

  AVFormatContext& format() const { return *format_; }

  // The first track of moving pictures; a cover picture is none. Null if there isn't one.
  AVStream* videoStream() const;
  // The track of sound that goes with it; null if there isn't one.
  AVStream* soundStream() const;

  // Seconds from the clip's beginning to that time of a stream, and the other way round.
  double secondsOf(int64_t timestamp, const AVStream& stream) const;
  int64_t timestampAt(double seconds, const AVStream& stream) const;

  // Reads only that stream, and the other one if it isn't null, from now on.
  void keepOnly(const AVStream& stream, const AVStream* other = nullptr);

  enum class Reading { packet, end, failure };

  // The next packet into `packet`. A failure is a broken file or disk, or the end of the time.
  Reading readNext(AVPacket& packet);
  // The same; false for all but a packet.
  bool read(AVPacket& packet) { return readNext(packet) == Reading::packet; }

  bool isExpired() const { return source_.isExpired(); }

 private:
  Clip(posix::OpenFile file, Expiry expiry) : source_(std::move(file), std::move(expiry)) {}

  // When the clip begins, in seconds of its own count.
  double start() const;

  bool openFormat();
  void meetStreams();
  bool findStreams();

  ByteSource source_;
  Format format_;  // goes before the source that it reads
};

// An open decoder of the stream, which works on so many threads; null if it is of a kind that isn't
// taken.
Decoder openDecoder(const AVStream& stream, int threads = 1);

}  // namespace tarnloft::libav
