#pragma once

#include "platform/Archiver.h"
#include "platform/ClipPlayer.h"
#include "platform/Trash.h"

namespace tarnloft {

// Players of clips; where their library can't be loaded, all clips count as broken.
class LateClipPlayers : public ClipPlayers {
 public:
  std::unique_ptr<ClipPlayer> open(const ClipSource& source,
                                   std::function<void()> changed) override;
  bool finish(std::chrono::milliseconds patience) override;

 private:
  bool isUsed_ = false;
};

// Archives; all fail where the library can't be loaded.
class LateArchiver : public Archiver {
 public:
  Result<void> archive(const QString& folder, FileWriter& target, Progress& progress) override;
  Result<void> extract(const QString& archive, const QString& folder, Progress& progress) override;
};

// The trash; nothing can be thrown away where the library can't be loaded.
class LateTrash : public Trash {
 public:
  Result<void> moveToTrash(const QString& path) override;
};

}  // namespace tarnloft
