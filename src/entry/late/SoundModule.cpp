#include "entry/late/LateModules.h"
#include "platform/desktop/clips/player/PulseSound.h"

using namespace tarnloft;

SoundOutputs* tarnloftSounds() {
  static PulseSounds sounds;
  return &sounds;
}
