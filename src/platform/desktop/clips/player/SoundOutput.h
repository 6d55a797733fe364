#pragma once

#include <memory>
#include <optional>

namespace tarnloft {

// Where a clip's sound goes: frames of two samples, 48,000 in a second. One thread, and no call
// waits for anything. Its end silences it at once.
class SoundOutput {
 public:
  static constexpr int rate = 48000;  // frames in a second
  static constexpr int channels = 2;

  virtual ~SoundOutput() = default;

  enum class State { opening, ready, gone };

  // Deals with what has come in between; to be called often.
  virtual State turn() = 0;
  // So many frames can be written now.
  virtual int room() const = 0;
  virtual void write(const float* samples, int frames) = 0;
  // What is written sounds while it runs; at first it doesn't.
  virtual void setRunning(bool running) = 0;
  // Forgets what was written and hasn't been heard.
  virtual void clear() = 0;
  // Seconds of what was written that haven't been heard; none while that isn't known.
  virtual std::optional<double> unheard() const = 0;
};

// Opens them; null if there is no way to. Any thread.
class SoundOutputs {
 public:
  virtual ~SoundOutputs() = default;
  virtual std::unique_ptr<SoundOutput> open() = 0;
};

}  // namespace tarnloft
