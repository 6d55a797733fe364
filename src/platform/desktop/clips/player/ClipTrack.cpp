#include "platform/desktop/clips/player/ClipTrack.h"

namespace tarnloft::libav {

void ClipTrack::put(Packet packet) {
  bytes_ += size_t(packet->size);
  packets_.push_back(std::move(packet));
}

bool ClipTrack::decode(const std::function<void(const AVFrame& frame)>& use) {
  Packet packet;
  if (!packets_.empty()) {
    packet = std::move(packets_.front());
    packets_.pop_front();
    bytes_ -= size_t(packet->size);
  }
  isDone_ = !packet;
  int code = avcodec_send_packet(decoder_.get(), packet.get());
  if (code < 0 && packet) return false;
  while ((code = avcodec_receive_frame(decoder_.get(), frame_.get())) >= 0) use(*frame_);
  return code == AVERROR(EAGAIN) || code == AVERROR_EOF;
}

void ClipTrack::restart() {
  avcodec_flush_buffers(decoder_.get());
  packets_.clear();
  bytes_ = 0;
  isDone_ = false;
}

}  // namespace tarnloft::libav
