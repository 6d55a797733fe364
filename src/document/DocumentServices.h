#pragma once

#include "model/Timestamp.h"
#include "platform/FileStore.h"
#include "platform/SystemLog.h"

namespace tarnloft {

// What a document needs of its surroundings. Borrowed: all of it outlives every document.
struct DocumentServices {
  FileStore& files;
  SystemLog& log;
  Clock clock = systemNow;
};

}  // namespace tarnloft
