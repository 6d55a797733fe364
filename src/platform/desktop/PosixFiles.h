#pragma once

#include "platform/FileStore.h"

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

enum class Links { follow, refuse };

// Opens a regular file for reading. Never waits on a pipe or a device.
Result<OpenFile> openRegularFile(const QString& path, Links links = Links::follow);

// The same for a file below a folder, by a way that at no moment leads out of it, were it only to
// come back: then it fails, as it does where the system knows no such way.
Result<OpenFile> openBeneath(const QString& path, const QString& root);

// All bytes of a file that nothing was read from yet; memory for its whole size.
Result<QByteArray> contentOf(const OpenFile& file);

// Returns when the content is on the medium. Some file systems have no way to wait for that; there
// is nothing more to do on them, and it counts as success.
Result<void> synced(const Descriptor& file);

FileIdentity identityOf(const struct stat& info);

std::unique_ptr<FileReader> makeReader(Descriptor file, const struct stat& info);

// A file without a name, or one that is removed under its name on destruction.
class PosixWriter : public FileWriter {
 public:
  PosixWriter(Descriptor file, QByteArray name) : file_(std::move(file)), name_(std::move(name)) {}
  ~PosixWriter() override;
  Q_DISABLE_COPY_MOVE(PosixWriter)

  Result<void> write(QByteArrayView bytes) override;
  Result<void> repeat(qint64 offset, qint64 length) override;
  Result<void> truncate(qint64 size) override;
  Result<void> sync() override { return synced(file_); }
  FileIdentity identity() const override;

  // Gives the file that name, if it has none yet, and then `target`, by renaming it.
  Result<void> moveTo(const QByteArray& name, const QByteArray& target);

 private:
  Descriptor file_;
  QByteArray name_;  // empty while it has none, and once it stands in its place
};

// Copies the whole content, by shared blocks or inside of the system where that can be done.
Result<void> copyContent(const Descriptor& source, const Descriptor& target);

}  // namespace tarnloft::posix
