#pragma once

#include "platform/FileViewer.h"

namespace tarnloft {

// Asks the running or installed file manager over the session bus (org.freedesktop.FileManager1);
// where none answers, opens the folder. Needs a Gui application.
class DesktopFileViewer : public FileViewer {
 public:
  void reveal(const QString& path) override;

 protected:
  virtual void openFolder(const QString& path);
};

}  // namespace tarnloft
