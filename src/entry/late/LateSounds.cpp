#include "entry/late/LateSounds.h"

#include "entry/late/ModuleLoading.h"

namespace tarnloft {

std::unique_ptr<SoundOutput> LateSounds::open() {
  static SoundOutputs* const loaded =
      fromModule<SoundOutputs>("libtarnloft-sound.so", "tarnloftSounds");
  return loaded ? loaded->open() : nullptr;
}

}  // namespace tarnloft
