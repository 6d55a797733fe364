#pragma once

#include "platform/desktop/files/PosixFileStore.h"

namespace tarnloft {

inline Error fullDisk() { return {ErrorKind::io, "No space left on device"}; }

// The real disk with a fault in it. Every call that changes the disk is a step; steps are counted
// from 1.
class FaultyStore : public PosixFileStore {
 public:
  enum class Fault {
    none,
    failStep,   // that one step fails with a full disk; a write leaves half of its bytes
    cutBehind,  // the power goes right behind that step: no later one happens
    failReads   // reading fails behind the first bytes of a file
  };

  Fault fault = Fault::none;
  int atStep = 0;
  mutable int steps = 0;
  int synced = 0;  // files

  Result<std::unique_ptr<FileReader>> open(const QString& path,
                                           const QString& root) const override {
    auto file = PosixFileStore::open(path, root);
    if (!file || fault != Fault::failReads) return file;
    return std::make_unique<Reader>(std::move(*file));
  }
  Result<std::shared_ptr<OpenFolder>> openFolder(const QString& path,
                                                 const QString& root) const override {
    return PosixFileStore::openFolder(path, root)
        .map([this](auto folder) -> std::shared_ptr<OpenFolder> {
          return std::make_shared<Folder>(*this, std::move(folder));
        });
  }
  Result<void> makeFolder(const QString& path) override {
    return step() ? PosixFileStore::makeFolder(path) : tl::unexpected(fullDisk());
  }
  Result<QString> makeTemporaryFolder(const QString& name) override {
    if (!step()) return tl::unexpected(fullDisk());
    return PosixFileStore::makeTemporaryFolder(name);
  }
  Result<void> copyFile(const QString& source, const QString& target) override {
    return step() ? PosixFileStore::copyFile(source, target) : tl::unexpected(fullDisk());
  }
  Result<void> copyFolder(const QString& source, const QString& target,
                          Progress& progress) override {
    return step() ? PosixFileStore::copyFolder(source, target, progress)
                  : tl::unexpected(fullDisk());
  }
  Result<std::unique_ptr<FileWriter>> createTemporary(const QString& target) override {
    if (!step()) return tl::unexpected(fullDisk());
    auto file = PosixFileStore::createTemporary(target);
    if (!file) return file;
    return std::make_unique<Writer>(*this, std::move(*file));
  }
  Result<void> replace(FileWriter& temporary, const QString& target) override {
    if (!step()) return tl::unexpected(fullDisk());
    return PosixFileStore::replace(static_cast<Writer&>(temporary).inner(), target);
  }
  Result<Replaced> exchange(FileWriter& temporary, const QString& target) override {
    if (!step()) return tl::unexpected(fullDisk());
    return PosixFileStore::exchange(static_cast<Writer&>(temporary).inner(), target);
  }
  Result<void> moveOver(const QString& path, const QString& target) override {
    return step() ? PosixFileStore::moveOver(path, target) : tl::unexpected(fullDisk());
  }
  Result<void> syncTree(const QString& path) override {
    return step() ? PosixFileStore::syncTree(path) : tl::unexpected(fullDisk());
  }
  Result<void> syncFolder(const QString& path) override {
    return step() ? PosixFileStore::syncFolder(path) : tl::unexpected(fullDisk());
  }
  Result<void> remove(const QString& path) override {
    return step() ? PosixFileStore::remove(path) : tl::unexpected(fullDisk());
  }
  Result<void> removeFolder(const QString& path) override {
    return step() ? PosixFileStore::removeFolder(path) : tl::unexpected(fullDisk());
  }
  Result<void> moveFolder(const QString& path, const QString& target) override {
    return step() ? PosixFileStore::moveFolder(path, target) : tl::unexpected(fullDisk());
  }
  void sweepTemporaries(const QString& folder, std::chrono::hours age) override {
    if (step()) PosixFileStore::sweepTemporaries(folder, age);
  }

  // Counts a step; false if it must not happen.
  bool step() const {
    ++steps;
    if (fault == Fault::failStep) return steps != atStep;
    if (fault == Fault::cutBehind) return steps <= atStep;
    return true;
  }

 private:
  class Writer : public FileWriter {
   public:
    Writer(FaultyStore& store, std::unique_ptr<FileWriter> file)
        : store_(store), file_(std::move(file)) {}

    Result<void> write(QByteArrayView bytes) override {
      if (store_.step()) return file_->write(bytes);
      if (store_.fault == Fault::failStep) {
        (void)file_->write(bytes.first(bytes.size() / 2));
      }
      return tl::unexpected(fullDisk());
    }
    Result<void> repeat(qint64 offset, qint64 length) override {
      return store_.step() ? file_->repeat(offset, length) : tl::unexpected(fullDisk());
    }
    Result<void> overwrite(qint64 offset, QByteArrayView bytes) override {
      return store_.step() ? file_->overwrite(offset, bytes) : tl::unexpected(fullDisk());
    }
    Result<void> truncate(qint64 size) override {
      return store_.step() ? file_->truncate(size) : tl::unexpected(fullDisk());
    }
    Result<void> sync() override {
      ++store_.synced;
      return store_.step() ? file_->sync() : tl::unexpected(fullDisk());
    }
    FileIdentity identity() const override { return file_->identity(); }
    FileWriter& inner() { return *file_; }

   private:
    FaultyStore& store_;
    std::unique_ptr<FileWriter> file_;
  };

  class Reader : public FileReader {
   public:
    explicit Reader(std::unique_ptr<FileReader> file) : file_(std::move(file)) {}

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

  class Folder : public OpenFolder {
   public:
    Folder(const FaultyStore& store, std::shared_ptr<OpenFolder> folder)
        : store_(store), folder_(std::move(folder)) {}

    Result<void> copyIn(const QString& source, const QString& name, Progress& progress) override {
      return store_.step() ? folder_->copyIn(source, name, progress) : tl::unexpected(fullDisk());
    }
    Result<void> writeIn(QByteArrayView bytes, const QString& name) override {
      return store_.step() ? folder_->writeIn(bytes, name) : tl::unexpected(fullDisk());
    }
    Result<QString> path() const override { return folder_->path(); }

   private:
    const FaultyStore& store_;
    std::shared_ptr<OpenFolder> folder_;
  };
};

}  // namespace tarnloft
