#include "entry/late/LateModules.h"
#include "platform/desktop/images/VipsImages.h"

using namespace tarnloft;

Images* tarnloftImages(const QString& programFolder) {
  static VipsImages images(programFolder + QStringLiteral("/tarnloft-vectors"));
  return &images;
}
