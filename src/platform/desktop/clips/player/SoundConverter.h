#pragma once

#include "platform/desktop/clips/LibavClip.h"

#include <vector>

extern "C" {
#include <libswresample/swresample.h>
}

namespace tarnloft::libav {

// Brings decoded sound into the form that outputs take.
class SoundConverter {
 public:
  // Nothing for what can't be brought into it.
  std::vector<float> samplesOf(const AVFrame& frame);
  // What comes next doesn't follow what came last.
  void restart() { converter_.reset(); }

 private:
  using Converter = std::unique_ptr<SwrContext, ReleasePointed<swr_free>>;

  bool prepareFor(const AVFrame& frame);

  Converter converter_;
  int format_ = -1, rate_ = 0, channels_ = 0;  // that it is made for
};

}  // namespace tarnloft::libav
