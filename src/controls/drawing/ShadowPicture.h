#pragma once

#include <QImage>
#include <QPixmap>

class QPainter;

namespace tarnloft {

// The soft shadow of a rounded rectangle, in pixels.
struct ShadowLook {
  int radius = 0;       // of the corners
  int blur = 0;         // radius of the softness
  double strength = 0;  // opacity, from 0 to 1

  // How far it reaches beyond the rectangle on each side.
  int extent() const { return 2 * blur; }
  // How far from the shadow's own edge a side is all alike.
  int border() const { return radius + 2 * extent(); }

  friend bool operator==(const ShadowLook&, const ShadowLook&) = default;
};

// A shadow's picture, of a certain size or to be stretched by its middle, which its rectangle
// hides. Main thread, or a scene graph's while that one waits.
class ShadowPicture {
 public:
  // Made once for each look, and for each size that is too small for its corners. What is kept is
  // bounded.
  static ShadowPicture of(const ShadowLook& look, QSize bounds);

  const QImage& image() const { return image_; }
  // Of its corners; 0 where it is as large as what was asked for.
  int border() const { return border_; }

  // On whole pixels of the painter's, untransformed: stretched pictures take most of a frame.
  void paint(QPainter& painter, const QRect& bounds) const;

 private:
  ShadowPicture(QImage image, int border);

  QImage image_;
  int border_;
  QPixmap top_, bottom_, left_, right_;  // pieces of the sides, to be repeated
};

}  // namespace tarnloft
