#pragma once

#include "model/ImageBackground.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tarnloft {

// What lies behind a picture, for QML: `Backdrop.Checkerboard`.
namespace Backdrop {
Q_NAMESPACE
QML_ELEMENT

// In the order in which they are offered.
enum Kind { Default, White, Dark, Checkerboard };
Q_ENUM_NS(Kind)

// The default is the window's own ground.
inline Kind of(const std::optional<ImageBackground>& background) {
  if (!background) return Default;
  switch (*background) {
    case ImageBackground::white: return White;
    case ImageBackground::dark: return Dark;
    case ImageBackground::checkerboard: break;
  }
  return Checkerboard;
}

inline std::optional<ImageBackground> stored(Kind kind) {
  switch (kind) {
    case Default: return std::nullopt;
    case White: return ImageBackground::white;
    case Dark: return ImageBackground::dark;
    case Checkerboard: break;
  }
  return ImageBackground::checkerboard;
}

}  // namespace Backdrop
}  // namespace tarnloft
