#pragma once

#include <QString>

namespace tarnloft {

// The desktop's file manager.
class FileViewer {
 public:
  virtual ~FileViewer() = default;

  // Shows the file's folder with the file selected. Best effort, returns at once.
  virtual void reveal(const QString& path) = 0;
};

}  // namespace tarnloft
