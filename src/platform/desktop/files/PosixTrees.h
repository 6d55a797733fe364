#pragma once

#include "platform/desktop/files/PosixFiles.h"

#include <QByteArrayList>

#include <chrono>

// Folders with what is in them; a piece of PosixFileStore. Paths are the system's bytes: a name
// that is no text goes with its folder as well.
namespace tarnloft::posix {

// All names in a folder but "." and "..", in no order.
Result<QByteArrayList> namesIn(const QByteArray& folder);

// See FileStore::copyFolder; leaves what was copied by then on failure.
Result<void> copyTree(const QByteArray& source, const QByteArray& target, Progress& progress);

// Of all files in a folder together, in bytes; of those that can be seen.
qint64 sizeOfTree(const QByteArray& path);

// Removes a file, a link or a folder with all that can be removed in it.
Result<void> removeTree(const QByteArray& path);

// See FileStore.
Result<void> syncFolder(const QByteArray& path);
Result<void> syncTree(const QByteArray& path);
void sweepTemporaries(const QByteArray& folder, std::chrono::hours age);

}  // namespace tarnloft::posix
