#pragma once

#include <QImage>

extern "C" {
#include <libavutil/frame.h>
}

namespace tarnloft::libav {

// A picture whose numbers are those of the frame, in sRGB: a wider range of colours is brought into
// it, and what is brighter than white in a picture of high range keeps its place above the rest.
QImage inStandardColors(const QImage& picture, const AVFrame& frame);

}  // namespace tarnloft::libav
