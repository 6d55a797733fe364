#include "entry/late/LateModules.h"
#include "platform/desktop/files/GioTrash.h"

using namespace tarnloft;

Trash* tarnloftTrash() {
  static GioTrash trash;
  return &trash;
}
