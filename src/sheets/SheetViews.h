#pragma once

#include <QQmlComponent>

#include <memory>
#include <vector>

namespace tarnloft {

// The views of the sheets that tiles, sections and brands open, loaded ahead of the first opening.
// They stay loaded as long as this lives. Main thread.
class SheetViews {
 public:
  // Begins, on the engine's own thread, if that hasn't been done. The engine outlives this.
  void load(QQmlEngine& engine);

 private:
  std::vector<std::unique_ptr<QQmlComponent>> views_;
};

}  // namespace tarnloft
