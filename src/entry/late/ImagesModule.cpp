#include "entry/late/LateModules.h"
#include "platform/desktop/images/VipsImages.h"

using namespace tarnloft;

Images* tarnloftImages(const QString& moduleFolder) {
  static VipsImages images(moduleFolder + QStringLiteral("/tarnloft-vectors"));
  return &images;
}
