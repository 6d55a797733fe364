#include "entry/late/LateModules.h"
#include "entry/late/LateSounds.h"
#include "platform/desktop/clips/player/LibavClipPlayers.h"

using namespace tarnloft;

ClipPlayers* tarnloftClipPlayers() {
  static LateSounds sounds;
  static LibavClipPlayers players(&sounds);
  return &players;
}
