#include "platform/desktop/clips/player/PulseSound.h"

#include <algorithm>
#include <cstdint>
#include <pulse/pulseaudio.h>

namespace tarnloft {
namespace {

constexpr pa_sample_spec format{
    .format = PA_SAMPLE_FLOAT32NE, .rate = SoundOutput::rate, .channels = SoundOutput::channels};
constexpr size_t frameSize = sizeof(float) * SoundOutput::channels;

constexpr uint32_t bytesIn(int milliseconds) {
  return uint32_t(SoundOutput::rate / 1000 * milliseconds) * uint32_t(frameSize);
}

// All goes over one socket, which is looked at when asked to and never waited for. A stream is made
// anew after each clearing: what a server tells of an emptied one holds for what was in it.
class PulseSound : public SoundOutput {
 public:
  PulseSound() : loop_(pa_mainloop_new()) {
    context_ = pa_context_new(pa_mainloop_get_api(loop_), "Tarn Loft");
    if (context_) pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
  }
  ~PulseSound() override {
    dropStream();
    if (context_) {
      pa_context_disconnect(context_);
      pa_context_unref(context_);
    }
    pa_mainloop_free(loop_);
  }
  PulseSound(const PulseSound&) = delete;
  PulseSound& operator=(const PulseSound&) = delete;
  PulseSound(PulseSound&&) = delete;
  PulseSound& operator=(PulseSound&&) = delete;

  State turn() override {
    while (pa_mainloop_iterate(loop_, 0, nullptr) > 0) continue;
    const auto connection = context_ ? pa_context_get_state(context_) : PA_CONTEXT_FAILED;
    if (!PA_CONTEXT_IS_GOOD(connection)) return State::gone;
    if (connection != PA_CONTEXT_READY) return State::opening;
    if (!stream_ && !openStream()) return State::gone;
    switch (pa_stream_get_state(stream_)) {
      case PA_STREAM_READY: return State::ready;
      case PA_STREAM_UNCONNECTED:
      case PA_STREAM_CREATING: return State::opening;
      default: return State::gone;
    }
  }

  int room() const override {
    return isReady()
               ? int(std::min(pa_stream_writable_size(stream_), size_t(bytesIn(1000))) / frameSize)
               : 0;
  }

  void write(const float* samples, int frames) override {
    if (isReady())
      pa_stream_write(stream_, samples, size_t(frames) * frameSize, nullptr, 0, PA_SEEK_RELATIVE);
  }

  void setRunning(bool running) override {
    isRunning_ = running;
    if (stream_) cork();
  }

  void clear() override { dropStream(); }

  std::optional<double> unheard() const override {
    pa_usec_t latency = 0;
    int isNegative = 0;
    if (!isReady() || pa_stream_get_latency(stream_, &latency, &isNegative) < 0)
      return std::nullopt;
    return (isNegative ? -1 : 1) * double(latency) / PA_USEC_PER_SEC;
  }

 private:
  bool isReady() const { return stream_ && pa_stream_get_state(stream_) == PA_STREAM_READY; }

  bool openStream() {
    stream_ = pa_stream_new(context_, "Video", &format, nullptr);
    if (!stream_) return false;
    constexpr auto any = uint32_t(-1);
    // Little ahead, so that the volume follows at once.
    const pa_buffer_attr buffer{.maxlength = any,
                                .tlength = bytesIn(150),
                                .prebuf = bytesIn(10),
                                .minreq = any,
                                .fragsize = any};
    const auto flags = pa_stream_flags_t(PA_STREAM_START_CORKED | PA_STREAM_INTERPOLATE_TIMING |
                                         PA_STREAM_AUTO_TIMING_UPDATE | PA_STREAM_ADJUST_LATENCY);
    pa_stream_set_state_callback(stream_, corkNew, this);
    return pa_stream_connect_playback(stream_, nullptr, &buffer, flags, nullptr, nullptr) >= 0;
  }

  // What was asked before the server had made it.
  static void corkNew(pa_stream* stream, void* self) {
    auto& sound = *static_cast<PulseSound*>(self);
    if (pa_stream_get_state(stream) == PA_STREAM_READY && sound.isRunning_) sound.cork();
  }

  void cork() {
    if (!isReady()) return;
    pa_operation* const operation = pa_stream_cork(stream_, isRunning_ ? 0 : 1, nullptr, nullptr);
    if (operation) pa_operation_unref(operation);
  }

  void dropStream() {
    if (!stream_) return;
    pa_stream_set_state_callback(stream_, nullptr, nullptr);
    pa_stream_disconnect(stream_);
    pa_stream_unref(stream_);
    stream_ = nullptr;
  }

  pa_mainloop* const loop_;
  pa_context* context_ = nullptr;
  pa_stream* stream_ = nullptr;
  bool isRunning_ = false;
};

}  // namespace

std::unique_ptr<SoundOutput> PulseSounds::open() { return std::make_unique<PulseSound>(); }

}  // namespace tarnloft
