#include "platform/desktop/clips/player/SoundQueue.h"

#include "platform/desktop/clips/player/SoundOutput.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {
namespace {

constexpr int rate = SoundOutput::rate, channels = SoundOutput::channels;
constexpr double jitter = 0.02;     // clips are less exact about times than about samples
constexpr double longestGap = 30;   // seconds; a longer one is the file's mistake
constexpr double mostOverlap = 30;  // seconds

// Samples that last so long, whole frames.
size_t samplesIn(double seconds) {
  return size_t(std::max(0L, std::lround(seconds * rate))) * channels;
}

}  // namespace

void SoundQueue::clear(double begin) {
  samples_.clear();
  begin_ = begin;
}

double SoundQueue::seconds() const { return double(samples_.size()) / channels / rate; }

void SoundQueue::add(double begin, const std::vector<float>& samples) {
  const double gap = begin - end();
  if (gap > jitter && gap < longestGap) samples_.insert(samples_.end(), samplesIn(gap), 0.0F);
  const size_t overlap =
      gap < -jitter && gap > -mostOverlap ? std::min(samplesIn(-gap), samples.size()) : 0;
  samples_.insert(samples_.end(), samples.begin() + ptrdiff_t(overlap), samples.end());
}

std::vector<float> SoundQueue::take(int frames) {
  const size_t count = std::min(size_t(std::max(frames, 0)) * channels, samples_.size());
  std::vector<float> taken(samples_.begin(), samples_.begin() + ptrdiff_t(count));
  drop(count);
  return taken;
}

void SoundQueue::skipTo(double moment) {
  if (moment > begin_) drop(std::min(samplesIn(moment - begin_), samples_.size()));
}

void SoundQueue::drop(size_t samples) {
  samples_.erase(samples_.begin(), samples_.begin() + ptrdiff_t(samples));
  begin_ += double(samples) / channels / rate;
}

}  // namespace tarnloft
