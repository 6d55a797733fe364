#pragma once

#include "platform/FileStore.h"

namespace tarnloft::LibraryFolder {

// Whether the folder can be a library: one that is there or can be made, isn't part of a brand, and
// can be read and written to. The failure's message tells the user why not. Any thread.
Result<void> check(FileStore& files, const QString& path);

}  // namespace tarnloft::LibraryFolder
