#include "entry/late/LateModules.h"
#include "platform/desktop/archives/ZipArchiver.h"

using namespace tarnloft;

Archiver* tarnloftArchiver() {
  static ZipArchiver archiver;
  return &archiver;
}
