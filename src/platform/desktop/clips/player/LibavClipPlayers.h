#pragma once

#include "platform/ClipPlayer.h"
#include "platform/desktop/clips/player/SoundOutput.h"

#include <QThreadPool>

namespace tarnloft {

// Plays clips through libavformat and libavcodec, each by two threads that go when its player does:
// one may be held up by a disk for as long as that takes, the other never is.
class LibavClipPlayers : public ClipPlayers {
 public:
  // Borrowed; null for silence.
  explicit LibavClipPlayers(SoundOutputs* outputs);

  std::unique_ptr<ClipPlayer> open(const ClipSource& source,
                                   std::function<void()> changed) override;
  bool finish(std::chrono::milliseconds patience) override;

 private:
  SoundOutputs* const outputs_;
  QThreadPool threads_;
};

}  // namespace tarnloft
