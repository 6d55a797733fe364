#pragma once

#include "platform/FileStore.h"

#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

// The pieces that PosixFileStore is made of.
namespace tarnloft::posix {

tl::unexpected<Error> systemFailure(int code);

// Success for 0, else the failure that `errno` tells.
Result<void> done(int status);

// Owns an open file; closes it on destruction. `errno` tells why one isn't open.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  int number() const { return number_; }
  // The same open file once more.
  Descriptor duplicate() const { return Descriptor(::fcntl(number_, F_DUPFD_CLOEXEC, 0)); }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

struct OpenFile {
  Descriptor file;
  struct stat info;
};

// The path as the system takes it; none for an empty one and for one that holds a NUL, at which the
// system would end it and so name another file.
std::optional<QByteArray> native(const QString& path);

// The same in reverse; fails for bytes that have no text form.
Result<QString> textOf(const QByteArray& path);

// Opens a regular file for reading. Never waits on a pipe or a device.
Result<OpenFile> openRegularFile(const QString& path);
Result<OpenFile> openRegularFile(const QByteArray& path);

// The same of a file inside a folder, all links followed.
Result<OpenFile> openFileInside(const QString& path, const QString& root);

// Opens a folder that is `root` or inside of it, all links followed.
Result<Descriptor> openFolderInside(const QString& path, const QString& root);

// Where a path leads in the end, with all links followed.
Result<QByteArray> canonicalPath(const QString& path);

// What a link says.
Result<QByteArray> linkContent(const QByteArray& path);

// All bytes of a file that nothing was read from yet; memory for its whole size.
Result<QByteArray> contentOf(const OpenFile& file);

// Returns when the content is on the medium. Some file systems have no way to wait for that; there
// is nothing more to do on them, and it counts as success.
Result<void> synced(const Descriptor& file);

// Makes them those of another file or folder, the owner's right to all of it added. Best effort: on
// some file systems they can't be set.
void setRightsAndTimes(const Descriptor& file, const struct stat& info);

FileIdentity identityOf(const struct stat& info);

std::unique_ptr<FileReader> makeReader(Descriptor file, const struct stat& info);

constexpr mode_t newFileMode = 0666;  // as far as the user's mask lets it through

Result<void> writeAll(const Descriptor& file, QByteArrayView bytes);

// Copies the whole content, by shared blocks or inside of the system where that can be done.
Result<void> copyContent(const Descriptor& source, const Descriptor& target, Progress& progress);

}  // namespace tarnloft::posix
