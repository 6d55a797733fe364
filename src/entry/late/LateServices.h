#pragma once

#include "platform/Archiver.h"
#include "platform/ClipPlayer.h"
#include "platform/Images.h"
#include "platform/Trash.h"
#include "platform/Videos.h"

namespace tarnloft {

// Pictures whose library is loaded at the first call, on the calling thread. Where it can't be, all
// files count as unreadable.
class LateImages : public Images {
 public:
  std::optional<ImageProperties> properties(const QString& path) override;
  std::optional<QSizeF> vectorSize(const QString& path) override;
  std::optional<QImage> thumbnail(const QString& path, int maxPixel) override;
  std::optional<QByteArray> convert(const QString& path, ExportFormat format, QSize size,
                                    double quality) override;
};

// The same for clips.
class LateVideos : public Videos {
 public:
  std::optional<VideoProperties> properties(const QString& path) override;
  std::optional<QImage> frame(const QString& path, double seconds, int maxPixel) override;
};

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
  Result<void> archive(const QString& folder, FileWriter& target) override;
  Result<void> extract(const QString& archive, const QString& folder) override;
};

// The trash; nothing can be thrown away where the library can't be loaded.
class LateTrash : public Trash {
 public:
  Result<void> moveToTrash(const QString& path) override;
};

}  // namespace tarnloft
