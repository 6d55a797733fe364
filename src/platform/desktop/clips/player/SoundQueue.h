#pragma once

#include <deque>
#include <optional>
#include <vector>

namespace tarnloft {

// Decoded sound on its way from the reader to the output, as `SoundOutput` takes it, without gaps.
class SoundQueue {
 public:
  // What comes first is to sound at that moment, in seconds of the clip.
  void clear(double begin);
  // Samples that are to sound from that moment on: behind a gap silence comes first, and what would
  // sound together with what is there already is left out.
  void add(double begin, const std::vector<float>& samples);
  // Takes so many frames, or what there is.
  std::vector<float> take(int frames);
  // Forgets what is to sound before that moment.
  void skipTo(double moment);

  double begin() const { return begin_; }
  double seconds() const;
  double end() const { return begin_ + seconds(); }
  bool isEmpty() const { return samples_.empty(); }

 private:
  void drop(size_t samples);

  std::deque<float> samples_;
  double begin_ = 0;
};

}  // namespace tarnloft
