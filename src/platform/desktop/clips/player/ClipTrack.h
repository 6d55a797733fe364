#pragma once

#include "platform/desktop/clips/LibavClip.h"

#include <deque>
#include <functional>

namespace tarnloft::libav {

// One track of a clip that is played: its decoder, and the packets that wait for it.
class ClipTrack {
 public:
  // The stream is its clip's; the decoder is one for it.
  ClipTrack(const AVStream& stream, Decoder decoder)
      : stream_(stream), decoder_(std::move(decoder)) {}

  const AVStream& stream() const { return stream_; }
  bool isWaitedFor() const { return !packets_.empty(); }
  size_t waitingBytes() const { return bytes_; }
  void put(Packet packet);

  // Decodes the packet that waits longest, or without one what the decoder still holds at the
  // track's end; each frame goes to `use`. False if it can't be decoded.
  bool decode(const std::function<void(const AVFrame& frame)>& use);
  // All has been decoded.
  bool isDone() const { return isDone_; }

  // Goes on elsewhere in the clip.
  void restart();

 private:
  const AVStream& stream_;
  const Decoder decoder_;
  const Frame frame_{av_frame_alloc()};
  std::deque<Packet> packets_;
  size_t bytes_ = 0;
  bool isDone_ = false;
};

}  // namespace tarnloft::libav
