#include "entry/media/MediaModules.h"
#include "platform/desktop/LibavVideos.h"

using namespace tarnloft;

Videos* tarnloftVideos(const QString& /*programFolder*/) {
  static LibavVideos videos;
  return &videos;
}
