#pragma once

#include "platform/ColorSampler.h"

#include <QImage>
#include <QPointF>
#include <QRasterWindow>

#include <memory>
#include <vector>

namespace tarnloft {

// Covers the screens with pictures of themselves, with a magnifier at the pointer, until the user
// clicks a pixel or leaves with Esc. For desktops whose windows can see the screen (X11).
class ScreenColorPicker {
 public:
  using Done = std::function<void(std::optional<SampledColor>)>;

  // False if this desktop gives no pictures of its screens.
  static bool isAvailable();

  explicit ScreenColorPicker(Done done);
  ~ScreenColorPicker();
  Q_DISABLE_COPY_MOVE(ScreenColorPicker)

 private:
  class Cover;

  void finish(std::optional<SampledColor> color);

  std::vector<std::unique_ptr<Cover>> covers_;
  Done done_;
};

}  // namespace tarnloft
