#include "document/AtomicWrite.h"

#include "document/Package.h"

namespace tarnloft {
namespace {

Result<void> fillAndReplace(FileStore& files, FileWriter& temporary, const QString& path,
                            Durability durability,
                            const std::function<Result<void>(FileWriter&)>& fill) {
  if (auto filled = fill(temporary); !filled) return filled;
  if (durability == Durability::synced) {
    if (auto synced = temporary.sync(); !synced) return synced;
  }
  return files.replace(temporary, path);
}

}  // namespace

Result<void> writeAtomically(FileStore& files, const QString& path, Durability durability,
                             const std::function<Result<void>(FileWriter&)>& fill) {
  const auto temporary = files.createTemporary(path);
  if (!temporary) return tl::unexpected(temporary.error());
  if (auto replaced = fillAndReplace(files, **temporary, path, durability, fill); !replaced) {
    return replaced;
  }
  if (durability == Durability::atomic) return {};
  return files.syncFolder(Package::folderOf(path));
}

}  // namespace tarnloft
