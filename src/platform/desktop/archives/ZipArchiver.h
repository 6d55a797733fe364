#pragma once

#include "platform/Archiver.h"

namespace tarnloft {

// Bounds for what a small archive may become: of bytes, `size` for any archive and `growth` times
// the archive's own size on top. Packages of pictures hardly shrink in an archive; one of nothing
// but white bitmaps stays below a hundred times.
struct UnpackLimits {
  qint64 size = qint64(256) << 20;
  qint64 growth = 200;
  int entries = 100'000;
};

class ZipArchiver : public Archiver {
 public:
  explicit ZipArchiver(const UnpackLimits& limits = {}) : limits_(limits) {}

  Result<void> archive(const QString& folder, FileWriter& target, Progress& progress) override;
  Result<void> extract(const QString& archive, const QString& folder, Progress& progress) override;

 private:
  const UnpackLimits limits_;
};

}  // namespace tarnloft
