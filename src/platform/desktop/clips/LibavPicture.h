#pragma once

#include "platform/desktop/clips/LibavClip.h"

#include <QImage>
#include <QSize>

#include <optional>

namespace tarnloft::libav {

// How a track is to be shown: so many quarter turns clockwise, of the picture or, with `mirrored`,
// of the picture with left and right exchanged.
struct Orientation {
  int quarterTurns = 0;  // 0 to 3
  bool mirrored = false;

  bool operator==(const Orientation&) const = default;
};

// From the track's display matrix. A slanted picture counts as turned to the nearest quarter.
Orientation orientationOf(const AVStream& stream);

// The size in which a frame's pixels are square, no longer than `maxPixel` on a side. Its height is
// the stored one at most, and its width what the pixels' shape makes of it.
QSize shownSize(QSize stored, AVRational pixelShape, int maxPixel);
// The largest one inside of `room` in which they are, larger than the stored one too.
QSize fittedSize(QSize stored, AVRational pixelShape, QSize room);

// Makes pictures of frames; quicker at those that are like the one before. One thread at a time.
class PictureMaker {
 public:
  // The frame in that size, in sRGB by the colours that it tells of itself; none if it is of a kind
  // that can't be shown.
  std::optional<QImage> pictureOf(const AVFrame& frame, QSize size);

 private:
  // What a scaler is made for.
  struct Kind {
    QSize from, to;
    int format = -1, colorspace = -1, range = -1;

    bool operator==(const Kind&) const = default;
  };

  Kind kind_;
  Scaler scaler_;
};

QImage oriented(const QImage& picture, Orientation orientation);

}  // namespace tarnloft::libav
