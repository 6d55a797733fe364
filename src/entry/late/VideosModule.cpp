#include "entry/late/LateModules.h"
#include "platform/desktop/clips/LibavVideos.h"

using namespace tarnloft;

Videos* tarnloftVideos(const QString& /*programFolder*/) {
  static LibavVideos videos;
  return &videos;
}
