#pragma once

#include "platform/desktop/files/PosixFileStore.h"

namespace tarnloft {

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

  Result<std::unique_ptr<FileReader>> open(const QString& path, const QString& root) const override;
  Result<std::shared_ptr<OpenFolder>> openFolder(const QString& path,
                                                 const QString& root) const override;
  Result<void> makeFolder(const QString& path) override;
  Result<QString> makeTemporaryFolder(const QString& name) override;
  Result<void> copyFile(const QString& source, const QString& target) override;
  Result<void> copyFolder(const QString& source, const QString& target) override;
  Result<std::unique_ptr<FileWriter>> createTemporary(const QString& target) override;
  Result<void> replace(FileWriter& temporary, const QString& target) override;
  Result<Replaced> exchange(FileWriter& temporary, const QString& target) override;
  Result<void> moveOver(const QString& path, const QString& target) override;
  Result<void> syncFolder(const QString& path) override;
  Result<void> syncTree(const QString& path) override;
  Result<void> remove(const QString& path) override;
  Result<void> removeFolder(const QString& path) override;
  Result<void> moveFolder(const QString& path, const QString& target) override;
  void sweepTemporaries(const QString& folder, std::chrono::hours age) override;

  // Counts a step; false if it must not happen.
  bool step() const;
};

Error fullDisk();

}  // namespace tarnloft
