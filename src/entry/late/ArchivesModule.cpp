#include "entry/late/LateModules.h"
#include "platform/desktop/archives/ZipArchiver.h"

using namespace tarnloft;

Archiver* tarnloftArchiver(const QString& /*moduleFolder*/) {
  static ZipArchiver archiver;
  return &archiver;
}
