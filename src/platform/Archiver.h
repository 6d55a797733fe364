#pragma once

#include "platform/FileStore.h"
#include "platform/Progress.h"

namespace tarnloft {

// Zip archives of folders. Any thread.
class Archiver {
 public:
  virtual ~Archiver() = default;

  // Writes a zip that holds the folder as its one top-level entry, with all that is in it: hidden
  // files, times and rights included, links as links, sockets and the like not at all.
  virtual Result<void> archive(const QString& folder, FileWriter& target, Progress& progress) = 0;

  // Unpacks a zip into an empty folder that is there, with times and rights, to which the owner's
  // right to all of it is added. The archive is foreign: refused is one that is encrypted, cut off,
  // names a file twice, leads out of the folder by a path or a link, or grows beyond any sensible
  // measure. What was unpacked by then is left to the caller. Nothing is synced: whoever keeps it
  // calls `FileStore::syncTree`.
  virtual Result<void> extract(const QString& archive, const QString& folder,
                               Progress& progress) = 0;
};

}  // namespace tarnloft
