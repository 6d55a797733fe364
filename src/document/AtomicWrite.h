#pragma once

#include "platform/FileStore.h"

#include <functional>

namespace tarnloft {

enum class Durability {
  atomic,  // the old file or the new one, whole
  synced   // and once the call returns, the new one survives a power cut
};

// Writes a file by filling a temporary one beside it and renaming that over it. On failure the file
// at `path` is as it was and the temporary one is gone. docs/saving.md tells what a crash in each
// step leaves.
Result<void> writeAtomically(FileStore& files, const QString& path, Durability durability,
                             const std::function<Result<void>(FileWriter&)>& fill);

}  // namespace tarnloft
