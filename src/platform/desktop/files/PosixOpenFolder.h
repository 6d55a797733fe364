#pragma once

#include "platform/desktop/files/PosixFiles.h"

namespace tarnloft::posix {

class PosixOpenFolder : public OpenFolder {
 public:
  explicit PosixOpenFolder(Descriptor folder) : folder_(std::move(folder)) {}

  Result<void> copyIn(const QString& source, const QString& name, Progress& progress) override;
  Result<void> writeIn(QByteArrayView bytes, const QString& name) override;
  Result<QString> path() const override;

 private:
  const Descriptor folder_;
};

}  // namespace tarnloft::posix
