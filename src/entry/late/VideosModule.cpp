#include "entry/late/LateModules.h"
#include "entry/late/LateSounds.h"
#include "platform/desktop/clips/LibavVideos.h"
#include "platform/desktop/clips/player/LibavClipPlayers.h"

using namespace tarnloft;

Videos* tarnloftVideos(const QString& /*moduleFolder*/) {
  static LibavVideos videos;
  return &videos;
}

ClipPlayers* tarnloftClipPlayers(const QString& /*moduleFolder*/) {
  static LateSounds sounds;
  static LibavClipPlayers players(&sounds);
  return &players;
}
