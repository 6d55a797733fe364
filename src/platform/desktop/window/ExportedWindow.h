#pragma once

#include <QString>

#include <memory>

class QWindow;

namespace tarnloft {

// A window as other programs may name it for as long as this lives, so that a dialog of the desktop
// belongs to it. Main thread.
class ExportedWindow {
 public:
  // Null exports nothing.
  explicit ExportedWindow(QWindow* window);
  ~ExportedWindow();
  Q_DISABLE_COPY_MOVE(ExportedWindow)

  // "x11:" or "wayland:" with what follows, as portals want it; empty where nothing can be named.
  const QString& handle() const { return handle_; }

 private:
  struct Surface;

  std::unique_ptr<Surface> surface_;  // on Wayland
  QString handle_;
};

}  // namespace tarnloft
