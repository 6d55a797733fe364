#pragma once

#include "platform/desktop/clips/player/SoundOutput.h"

namespace tarnloft {

// Sound to a server that speaks PulseAudio's protocol, as PipeWire does too.
class PulseSounds : public SoundOutputs {
 public:
  std::unique_ptr<SoundOutput> open() override;
};

}  // namespace tarnloft
