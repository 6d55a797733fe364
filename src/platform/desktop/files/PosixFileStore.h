#pragma once

#include "platform/FileStore.h"

namespace tarnloft {

// The file system of a POSIX system. Without state; any thread.
class PosixFileStore : public FileStore {
 public:
  bool exists(const QString& path) const override;
  bool isFolder(const QString& path) const override;
  Result<FileIdentity> identity(const QString& path) const override;
  bool standsInside(const QString& path, const QString& root) const override;
  Result<QStringList> list(const QString& folder) const override;
  Result<QStringList> listAll(const QString& folder) const override;
  Result<std::unique_ptr<FileReader>> open(const QString& path, const QString& root) const override;
  Result<std::shared_ptr<OpenFolder>> openFolder(const QString& path,
                                                 const QString& root) const override;
  Result<QString> resolved(const QString& path) const override;
  Result<void> makeFolder(const QString& path) override;
  Result<QString> makeTemporaryFolder(const QString& name) override;
  Result<void> copyFile(const QString& source, const QString& target) override;
  using FileStore::copyFolder;
  Result<void> copyFolder(const QString& source, const QString& target,
                          Progress& progress) override;
  Result<std::unique_ptr<FileWriter>> createTemporary(const QString& target) override;
  Result<void> replace(FileWriter& temporary, const QString& target) override;
  Result<Replaced> exchange(FileWriter& temporary, const QString& target) override;
  Result<void> moveOver(const QString& path, const QString& target) override;
  Result<void> syncFolder(const QString& path) override;
  Result<void> syncTree(const QString& path) override;
  Result<void> remove(const QString& path) override;
  Result<void> removeFolder(const QString& path) override;
  Result<void> moveFolder(const QString& path, const QString& target) override;
  QStringList temporaries(const QString& folder) const override;
  void sweepTemporaries(const QString& folder, std::chrono::hours age) override;
};

}  // namespace tarnloft
