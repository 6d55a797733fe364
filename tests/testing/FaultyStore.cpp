#include "testing/FaultyStore.h"

namespace tarnloft {
namespace {

class FaultyWriter : public FileWriter {
 public:
  FaultyWriter(FaultyStore& store, std::unique_ptr<FileWriter> file)
      : store_(store), file_(std::move(file)) {}

  Result<void> write(QByteArrayView bytes) override {
    if (store_.step()) return file_->write(bytes);
    if (store_.fault == FaultyStore::Fault::failStep) {
      (void)file_->write(bytes.first(bytes.size() / 2));
    }
    return tl::unexpected(fullDisk());
  }
  Result<void> repeat(qint64 offset, qint64 length) override {
    return store_.step() ? file_->repeat(offset, length) : tl::unexpected(fullDisk());
  }
  Result<void> truncate(qint64 size) override {
    return store_.step() ? file_->truncate(size) : tl::unexpected(fullDisk());
  }
  Result<void> sync() override {
    return store_.step() ? file_->sync() : tl::unexpected(fullDisk());
  }
  FileIdentity identity() const override { return file_->identity(); }
  FileWriter& inner() { return *file_; }

 private:
  FaultyStore& store_;
  std::unique_ptr<FileWriter> file_;
};

class FaultyReader : public FileReader {
 public:
  explicit FaultyReader(std::unique_ptr<FileReader> file) : file_(std::move(file)) {}

  Result<qint64> read(char* buffer, qint64 capacity) override {
    if (std::exchange(begun_, true)) return failure(ErrorKind::io, "Bad sector");
    return file_->read(buffer, std::min<qint64>(capacity, 10));
  }
  qint64 size() const override { return file_->size(); }
  FileIdentity identity() const override { return file_->identity(); }

 private:
  std::unique_ptr<FileReader> file_;
  bool begun_ = false;
};

class FaultyFolder : public OpenFolder {
 public:
  FaultyFolder(const FaultyStore& store, std::shared_ptr<OpenFolder> folder)
      : store_(store), folder_(std::move(folder)) {}

  Result<void> copyIn(const QString& source, const QString& name) override {
    return store_.step() ? folder_->copyIn(source, name) : tl::unexpected(fullDisk());
  }
  Result<void> writeIn(QByteArrayView bytes, const QString& name) override {
    return store_.step() ? folder_->writeIn(bytes, name) : tl::unexpected(fullDisk());
  }
  Result<QString> path() const override { return folder_->path(); }

 private:
  const FaultyStore& store_;
  std::shared_ptr<OpenFolder> folder_;
};

}  // namespace

Error fullDisk() { return {ErrorKind::io, "No space left on device"}; }

bool FaultyStore::step() const {
  ++steps;
  if (fault == Fault::failStep) return steps != atStep;
  if (fault == Fault::cutBehind) return steps <= atStep;
  return true;
}

Result<std::unique_ptr<FileReader>> FaultyStore::open(const QString& path,
                                                      const QString& root) const {
  auto file = PosixFileStore::open(path, root);
  if (!file || fault != Fault::failReads) return file;
  return std::make_unique<FaultyReader>(std::move(*file));
}

Result<std::shared_ptr<OpenFolder>> FaultyStore::openFolder(const QString& path,
                                                            const QString& root) const {
  return PosixFileStore::openFolder(path, root)
      .map([this](auto folder) -> std::shared_ptr<OpenFolder> {
        return std::make_shared<FaultyFolder>(*this, std::move(folder));
      });
}

Result<void> FaultyStore::makeFolder(const QString& path) {
  return step() ? PosixFileStore::makeFolder(path) : tl::unexpected(fullDisk());
}

Result<QString> FaultyStore::makeTemporaryFolder(const QString& name) {
  if (!step()) return tl::unexpected(fullDisk());
  return PosixFileStore::makeTemporaryFolder(name);
}

Result<void> FaultyStore::copyFile(const QString& source, const QString& target) {
  return step() ? PosixFileStore::copyFile(source, target) : tl::unexpected(fullDisk());
}

Result<void> FaultyStore::copyFolder(const QString& source, const QString& target) {
  return step() ? PosixFileStore::copyFolder(source, target) : tl::unexpected(fullDisk());
}

Result<std::unique_ptr<FileWriter>> FaultyStore::createTemporary(const QString& target) {
  if (!step()) return tl::unexpected(fullDisk());
  auto file = PosixFileStore::createTemporary(target);
  if (!file) return file;
  return std::make_unique<FaultyWriter>(*this, std::move(*file));
}

Result<void> FaultyStore::replace(FileWriter& temporary, const QString& target) {
  if (!step()) return tl::unexpected(fullDisk());
  return PosixFileStore::replace(static_cast<FaultyWriter&>(temporary).inner(), target);
}

Result<Replaced> FaultyStore::exchange(FileWriter& temporary, const QString& target) {
  if (!step()) return tl::unexpected(fullDisk());
  return PosixFileStore::exchange(static_cast<FaultyWriter&>(temporary).inner(), target);
}

Result<void> FaultyStore::moveOver(const QString& path, const QString& target) {
  return step() ? PosixFileStore::moveOver(path, target) : tl::unexpected(fullDisk());
}

Result<void> FaultyStore::syncTree(const QString& path) {
  return step() ? PosixFileStore::syncTree(path) : tl::unexpected(fullDisk());
}

Result<void> FaultyStore::syncFolder(const QString& path) {
  return step() ? PosixFileStore::syncFolder(path) : tl::unexpected(fullDisk());
}

Result<void> FaultyStore::remove(const QString& path) {
  return step() ? PosixFileStore::remove(path) : tl::unexpected(fullDisk());
}

Result<void> FaultyStore::removeFolder(const QString& path) {
  return step() ? PosixFileStore::removeFolder(path) : tl::unexpected(fullDisk());
}

Result<void> FaultyStore::moveFolder(const QString& path, const QString& target) {
  return step() ? PosixFileStore::moveFolder(path, target) : tl::unexpected(fullDisk());
}

void FaultyStore::sweepTemporaries(const QString& folder, std::chrono::hours age) {
  if (step()) PosixFileStore::sweepTemporaries(folder, age);
}

}  // namespace tarnloft
