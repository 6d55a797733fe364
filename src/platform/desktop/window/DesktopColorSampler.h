#pragma once

#include "platform/ColorSampler.h"

#include <QtGlobal>

#include <memory>

namespace tarnloft {

class PortalColorPicker;
class ScreenColorPicker;

// By the desktop's portal, else from a picture of the screen; where there is neither, the pick ends
// as if cancelled, and the reason is told. Needs a Gui application.
class DesktopColorSampler : public ColorSampler {
 public:
  using Refused = std::function<void(const QString& reason)>;

  explicit DesktopColorSampler(Refused refused);
  ~DesktopColorSampler() override;
  Q_DISABLE_COPY_MOVE(DesktopColorSampler)

  void show(std::function<void(std::optional<SampledColor>)> done) override;

 private:
  const Refused refused_;
  std::unique_ptr<PortalColorPicker> portal_;
  std::unique_ptr<ScreenColorPicker> screen_;
};

}  // namespace tarnloft
