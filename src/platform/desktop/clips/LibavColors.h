#pragma once

#include <QImage>

#include <cstring>

extern "C" {
#include <libavutil/frame.h>
}

namespace tarnloft::libav {

// A file's own number, which needn't be one that the library has a name for: as a value of its
// enumeration it must not be read.
template <class Enumeration>
int numberOf(const Enumeration& told) {
  static_assert(sizeof told == sizeof(int));
  int number = 0;
  std::memcpy(&number, &told, sizeof number);
  return number;
}

// A picture whose numbers are those of the frame, in sRGB: a wider range of colours is brought into
// it, and what is brighter than white in a picture of high range keeps its place above the rest.
QImage inStandardColors(const QImage& picture, const AVFrame& frame);

}  // namespace tarnloft::libav
