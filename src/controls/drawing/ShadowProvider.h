#pragma once

#include <QQuickImageProvider>

namespace tarnloft {

// Soft shadows of rounded rectangles. An id is
//   "<corner radius>/<blur radius>/<opacity in percent>/<width>/<height>/<ratio in percent>",
// in whole points, with the picture's pixels of a point. A width or height of 0 gives a picture to
// stretch by its middle. A picture reaches `extent(blur)` points beyond the rectangle on each side.
class ShadowProvider : public QQuickImageProvider {
 public:
  ShadowProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

  static QString name() { return QStringLiteral("tarnloft-shadow"); }
  static int extent(int blur) { return 2 * blur; }

  // The least side of a rectangle whose middle no corner's blur reaches.
  static int stretchableSide(int radius, int blur) { return 2 * (radius + extent(blur)) + 1; }

  QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace tarnloft
