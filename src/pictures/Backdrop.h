#pragma once

#include "model/ImageBackground.h"

#include <QColor>
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

// Its colour, for QML: `BackdropColor.of(backdrop, Theme.windowBackground)`.
class BackdropColor : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  // `ground` is what is there by default, and under a checkerboard.
  Q_INVOKABLE static QColor of(int backdrop, const QColor& ground) {
    switch (backdrop) {
      case Backdrop::White: return Qt::white;
      case Backdrop::Dark: return QColor::fromHsvF(0, 0, 0.16F);
      default: return ground;
    }
  }
};

}  // namespace tarnloft
