#pragma once

#include "platform/Progress.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QStringList>

#include <chrono>
#include <memory>

namespace tarnloft {

// Tells one state of a file from any other: a file that was replaced or written to has another one.
struct FileIdentity {
  quint64 device = 0;
  quint64 inode = 0;
  qint64 size = 0;
  qint64 modified = 0;  // nanoseconds since 1970
  qint64 changed = 0;   // the same of the file's own record

  bool operator==(const FileIdentity&) const = default;
};

// An open file being read from its beginning. Closed on destruction.
class FileReader {
 public:
  virtual ~FileReader() = default;

  // Fills up to `capacity` bytes and gives their number; 0 only at the end of the file.
  virtual Result<qint64> read(char* buffer, qint64 capacity) = 0;
  // Size in bytes when the file was opened.
  virtual qint64 size() const = 0;
  // Of the very file that is open, when it was opened.
  virtual FileIdentity identity() const = 0;
};

// A new file being written. Gone on destruction, unless a store has put it in its place.
class FileWriter {
 public:
  virtual ~FileWriter() = default;

  virtual Result<void> write(QByteArrayView bytes) = 0;
  // Writes `length` bytes that stand in the file from `offset` on once more, at its end.
  virtual Result<void> repeat(qint64 offset, qint64 length) = 0;
  // Writes over what stands in the file from `offset` on.
  virtual Result<void> overwrite(qint64 offset, QByteArrayView bytes) = 0;
  // Cuts the file back to `size` bytes; writing goes on from there.
  virtual Result<void> truncate(qint64 size) = 0;
  // Returns when the content is on the medium.
  virtual Result<void> sync() = 0;
  // Of the file as it is now, wherever a store has put it.
  virtual FileIdentity identity() const = 0;
};

// A folder held open: what is put in lands in it, wherever it has been moved meanwhile. A file
// appears under its name whole, readable and writable to its owner, and survives a power cut once
// the call returns; on failure nothing is left. A name is plain and free, any other is refused. Any
// thread, several calls at a time.
class OpenFolder {
 public:
  virtual ~OpenFolder() = default;

  // Copies a regular file in, links to it followed, with its rights and times.
  virtual Result<void> copyIn(const QString& source, const QString& name, Progress& progress) = 0;
  virtual Result<void> writeIn(QByteArrayView bytes, const QString& name) = 0;
  // Where the folder stands now; fails if it was deleted.
  virtual Result<QString> path() const = 0;
};

// What a store did with the file in whose place it put another.
struct Replaced {
  QString displacedPath;  // empty if it was none, or is gone
};

// The one door to the disk. Each call is one step that either happened or didn't; procedures such
// as `writeAtomically` are written above it, so that a test can cut them after each step. Paths are
// absolute or relative to the working directory; an empty one, or one that holds a NUL, is refused.
// Any thread, several calls at a time; a reader or a writer is for one thread at a time.
class FileStore {
 public:
  virtual ~FileStore() = default;

  // True if anything stands at the path, a dangling link included.
  virtual bool exists(const QString& path) const = 0;

  // True for a folder and for a link to one.
  virtual bool isFolder(const QString& path) const = 0;

  // Of the file, folder or link at the path. The failure's kind is `notFound` if nothing is there,
  // and any other if that can't be told.
  virtual Result<FileIdentity> identity(const QString& path) const = 0;

  // True if the path, with all links followed, exists and lies inside `root`.
  virtual bool standsInside(const QString& path, const QString& root) const = 0;

  // The names in a folder without hidden ones, in the order of their code units.
  virtual Result<QStringList> list(const QString& folder) const = 0;
  // The same with hidden ones, "." and ".." left out.
  virtual Result<QStringList> listAll(const QString& folder) const = 0;

  // Opens a regular file. Follows links, but refuses a file that, with all links followed, does not
  // stand inside `root`. Never waits on a pipe or a device. The failure's kind is `notFound` if
  // there is no such file or a link dangles.
  virtual Result<std::unique_ptr<FileReader>> open(const QString& path,
                                                   const QString& root) const = 0;

  // Opens a folder for what comes in. Follows links, but refuses one that, with all links followed,
  // is not `root` or inside of it.
  virtual Result<std::shared_ptr<OpenFolder>> openFolder(const QString& path,
                                                         const QString& root) const = 0;

  // Where a link leads in the end; a path that is no link as it stands. Fails on a dangling link.
  virtual Result<QString> resolved(const QString& path) const = 0;

  // Makes a folder and its missing parents; one that exists is no error.
  virtual Result<void> makeFolder(const QString& path) = 0;

  // Gives the path of the folder of that name in the temporary directory, made if it isn't there.
  // It is the user's own and nobody else can look into it or change it: where another user's stands
  // in its place, it has the user's number behind its name.
  virtual Result<QString> makeTemporaryFolder(const QString& name) = 0;

  // Copies a regular file, links to it followed, to a path where nothing stands. Shares blocks with
  // the source where the file system can; keeps rights and times, and adds its owner's right to
  // read and write. The copy appears whole; it isn't synced. On failure nothing is left.
  virtual Result<void> copyFile(const QString& source, const QString& target) = 0;

  // Copies a folder with all that is in it, hidden files included, to a path where nothing stands:
  // files as `copyFile` does, links as links, sockets and the like not at all. The copy appears
  // whole, by a rename, and survives a power cut once the call returns; on failure nothing is left.
  // Tells `progress` of bytes.
  virtual Result<void> copyFolder(const QString& source, const QString& target,
                                  Progress& progress) = 0;
  Result<void> copyFolder(const QString& source, const QString& target) {
    Progress untold;
    return copyFolder(source, target, untold);
  }

  // Makes a new, empty file in the folder of `target`, with the rights that `target` has or a new
  // file would get, and its owner's right to read and write: without a name where the file system
  // knows such files, so that no crash leaves one behind, else hidden. Fails if something other
  // than a file or a link is at `target`.
  virtual Result<std::unique_ptr<FileWriter>> createTemporary(const QString& target) = 0;

  // Renames a file that this store made over `target`, which must be a regular file, a link (it is
  // replaced, not followed), or not exist.
  virtual Result<void> replace(FileWriter& temporary, const QString& target) = 0;

  // The same in one step with keeping what stood there, under a hidden name beside it. Where the
  // file system can't exchange two files, what stood there is gone as with `replace`.
  virtual Result<Replaced> exchange(FileWriter& temporary, const QString& target) = 0;

  // Renames a file over `target`, for which the same holds as for `replace`.
  virtual Result<void> moveOver(const QString& path, const QString& target) = 0;

  // Returns when the folder's list of names is on the medium.
  virtual Result<void> syncFolder(const QString& path) = 0;

  // Returns when all that is in the folder, at any depth, is on the medium.
  virtual Result<void> syncTree(const QString& path) = 0;

  virtual Result<void> remove(const QString& path) = 0;

  // Removes a folder with all that is in it; links in it are removed, not followed.
  virtual Result<void> removeFolder(const QString& path) = 0;

  // Renames a file or folder on one file system; fails if anything stands at `target`.
  virtual Result<void> moveFolder(const QString& path, const QString& target) = 0;

  // The names of the store's hidden temporary files and half-made copies in a folder: left by a
  // killed program, or in work just now.
  virtual QStringList temporaries(const QString& folder) const = 0;

  // Removes what crashes and power cuts left in the folder of such temporaries: the user's own,
  // untouched for longer than `age`. Doesn't look into folders, and follows no links.
  virtual void sweepTemporaries(const QString& folder, std::chrono::hours age) = 0;
};

}  // namespace tarnloft
