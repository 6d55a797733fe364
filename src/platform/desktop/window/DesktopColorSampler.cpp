#include "platform/desktop/window/DesktopColorSampler.h"

#include "platform/desktop/window/PortalColorPicker.h"
#include "platform/desktop/window/ScreenColorPicker.h"

#include <QTimer>

#include <utility>

namespace tarnloft {

DesktopColorSampler::DesktopColorSampler(Refused refused) : refused_(std::move(refused)) {}
DesktopColorSampler::~DesktopColorSampler() = default;

void DesktopColorSampler::show(std::function<void(std::optional<SampledColor>)> done) {
  portal_ = std::make_unique<PortalColorPicker>();
  // A pick ends with the sampler being let go of, which must not happen inside of its own call.
  const auto later = [this, done](std::optional<SampledColor> color) {
    QTimer::singleShot(0, portal_.get(), [done, color] { done(color); });
  };
  portal_->pick(later, [this, later](const QString& reason) {
    if (ScreenColorPicker::isAvailable()) {
      screen_ = std::make_unique<ScreenColorPicker>(later);
    } else {
      refused_(reason);
      later(std::nullopt);
    }
  });
}

}  // namespace tarnloft
