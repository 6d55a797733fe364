#pragma once

#include <QImage>
#include <QString>

#include <optional>

namespace tarnloft {

// Small pictures of files that are kept on disk between runs. What can't be read or written there
// is only slower. Any thread, several at a time.
class ThumbnailStore {
 public:
  virtual ~ThumbnailStore() = default;

  // How long the longer side of a picture is that is kept; a small file's own is shorter.
  enum class Size { large = 256, xLarge = 512 };

  // Who may have made it.
  enum class Maker { anyProgram, thisProgram };

  // None if none is kept of the file as it is now.
  virtual std::optional<QImage> find(const QString& path, Size size, Maker maker) const = 0;

  // Keeps the picture of a file that could be read. May be done later, or not at all.
  virtual void keep(const QString& path, Size size, const QImage& picture) = 0;
};

}  // namespace tarnloft
