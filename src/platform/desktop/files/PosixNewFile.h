#pragma once

#include "platform/desktop/files/PosixFiles.h"

// Files that come into being; a piece of PosixFileStore.
namespace tarnloft::posix {

// A hidden name for what is there for a moment only.
QByteArray temporaryName();
bool isTemporaryName(const QByteArray& name);

// The folder that a path stands in, with the slash behind it.
QByteArray folderOf(const QByteArray& path);

// The same, open for making files there.
Descriptor openParent(const QByteArray& path);

// The name behind a path's last slash.
QByteArray nameOf(const QByteArray& path);

// Renames what stands in one open folder to a name that is free in another.
Result<void> renameToFree(int fromFolder, const QByteArray& from, int toFolder,
                          const QByteArray& to);

// A new file in an open folder: without a name where the file system knows such files, so that no
// crash leaves one behind, else with a hidden one. Gone on destruction, unless it was put in its
// place.
class NewFile {
 public:
  // An empty file with those rights, as far as the user's mask lets them through.
  static Result<NewFile> make(Descriptor folder, mode_t rights);
  // A copy of a regular file, links to it followed, with its rights and times.
  static Result<NewFile> copyOf(const QByteArray& source, Descriptor folder, Progress& progress);
  static Result<NewFile> copyOf(const QByteArray& source, Descriptor folder) {
    Progress untold;
    return copyOf(source, std::move(folder), untold);
  }

  NewFile(NewFile&& other) noexcept;
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  NewFile& operator=(NewFile&&) = delete;
  ~NewFile();

  const Descriptor& file() const { return file_; }

  // Gives it a free name in its folder.
  Result<void> appearAs(const QByteArray& name);
  // Renames it over what stands at the path.
  Result<void> moveOver(const QByteArray& target);
  // Swaps it with what stands at the path, and gives the hidden name that that has then in the
  // file's folder: empty if nothing stood there or the file system can't swap, which then renames.
  Result<QByteArray> exchangeWith(const QByteArray& target);

 private:
  NewFile(Descriptor folder, Descriptor file, QByteArray hiddenName)
      : folder_(std::move(folder)), file_(std::move(file)), hiddenName_(std::move(hiddenName)) {}

  Result<void> takeHiddenName();
  Result<void> link(const QByteArray& name);

  Descriptor folder_;
  Descriptor file_;
  QByteArray hiddenName_;  // empty while it has none, and once it stands in its place
};

class PosixWriter : public FileWriter {
 public:
  explicit PosixWriter(NewFile file) : new_(std::move(file)) {}

  Result<void> write(QByteArrayView bytes) override { return writeAll(new_.file(), bytes); }
  Result<void> repeat(qint64 offset, qint64 length) override;
  Result<void> overwrite(qint64 offset, QByteArrayView bytes) override;
  Result<void> truncate(qint64 size) override;
  Result<void> sync() override { return synced(new_.file()); }
  FileIdentity identity() const override;

  NewFile& newFile() { return new_; }

 private:
  NewFile new_;
};

}  // namespace tarnloft::posix
