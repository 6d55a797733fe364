#pragma once

#include "platform/desktop/clips/player/SoundOutput.h"

namespace tarnloft {

// Sound whose library is loaded at the first call, on the calling thread; none where it can't be.
class LateSounds : public SoundOutputs {
 public:
  std::unique_ptr<SoundOutput> open() override;
};

}  // namespace tarnloft
