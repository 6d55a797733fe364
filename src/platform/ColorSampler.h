#pragma once

#include <functional>
#include <optional>

namespace tarnloft {

// sRGB components, each from 0 to 1.
struct SampledColor {
  double red = 0;
  double green = 0;
  double blue = 0;
};

// Lets the user pick a colour anywhere on the screen.
class ColorSampler {
 public:
  virtual ~ColorSampler() = default;

  // Returns at once; `done` is called once on the main thread, with none if the user cancels. A
  // pick that runs is cancelled by the sampler's destruction.
  virtual void show(std::function<void(std::optional<SampledColor>)> done) = 0;
};

}  // namespace tarnloft
