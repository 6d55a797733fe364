#include "platform/desktop/clips/LibavPicture.h"

#include "platform/desktop/clips/LibavColors.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

extern "C" {
#include <libavutil/display.h>
#include <libavutil/pixdesc.h>
}

namespace tarnloft::libav {
namespace {

constexpr double strangestPixelShape = 8;  // beyond it, the file is wrong about it

double widthOfPixel(AVRational shape) {
  const double width = shape.num > 0 && shape.den > 0 ? av_q2d(shape) : 1;
  return width > strangestPixelShape || width < 1 / strangestPixelShape ? 1 : width;
}

// The coefficients of a frame that doesn't tell them are by custom those of its size.
int colorspaceOf(const AVFrame& frame) {
  const int told = numberOf(frame.colorspace);
  if (told != AVCOL_SPC_UNSPECIFIED) return told;
  return frame.width >= 1280 || frame.height > 576 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
}

bool isOf(const AVFrame& frame, uint64_t kind) {
  const AVPixFmtDescriptor* const format = av_pix_fmt_desc_get(AVPixelFormat(frame.format));
  return format && (format->flags & kind);
}

void setColors(SwsContext* scaler, const AVFrame& frame) {
  if (isOf(frame, AV_PIX_FMT_FLAG_RGB | AV_PIX_FMT_FLAG_PAL)) return;
  int* unused = nullptr;
  int fullRange = 0, outputRange = 0, brightness = 0, contrast = 0, saturation = 0;
  if (sws_getColorspaceDetails(scaler, &unused, &fullRange, &unused, &outputRange, &brightness,
                               &contrast, &saturation) < 0) {
    return;
  }
  if (numberOf(frame.color_range) == AVCOL_RANGE_JPEG) fullRange = 1;
  sws_setColorspaceDetails(scaler, sws_getCoefficients(colorspaceOf(frame)), fullRange,
                           sws_getCoefficients(SWS_CS_DEFAULT), outputRange, brightness, contrast,
                           saturation);
}

Scaler makeScaler(const AVFrame& frame, QSize size) {
  const auto format = AVPixelFormat(frame.format);
  Scaler scaler(sws_getContext(
      frame.width, frame.height, format, size.width(), size.height(), AV_PIX_FMT_RGB32,
      SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
  if (scaler) setColors(scaler.get(), frame);
  return scaler;
}

// Rows as wide as the scaler likes to write them.
Frame makeOutput(QSize size) {
  Frame output(av_frame_alloc());
  output->format = AV_PIX_FMT_RGB32;
  output->width = size.width();
  output->height = size.height();
  return av_frame_get_buffer(output.get(), 0) < 0 ? nullptr : std::move(output);
}

}  // namespace

Orientation orientationOf(const AVStream& stream) {
  size_t size = 0;
  const uint8_t* const data = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
  if (!data || size < 9 * sizeof(int32_t)) return {};
  int32_t matrix[9];
  std::copy_n(reinterpret_cast<const int32_t*>(data), 9, matrix);
  const double a = matrix[0], b = matrix[1], c = matrix[3], d = matrix[4];
  const bool mirrored = a * d - b * c < 0;
  const double turn = std::atan2(mirrored ? -b : b, mirrored ? -a : a);
  return {(int(std::lround(turn / M_PI_2)) + 4) % 4, mirrored};
}

QSize shownSize(QSize stored, AVRational pixelShape, int maxPixel) {
  const QSizeF shown(stored.width() * widthOfPixel(pixelShape), stored.height());
  const double longer = std::max(shown.width(), shown.height());
  const double scale = std::min(1.0, maxPixel / longer);
  return (shown * scale).toSize().expandedTo(QSize(1, 1)).boundedTo(QSize(maxPixel, maxPixel));
}

QSize fittedSize(QSize stored, AVRational pixelShape, QSize room) {
  const QSizeF shown(stored.width() * widthOfPixel(pixelShape), stored.height());
  const QSize fitted = shown.scaled(room, Qt::KeepAspectRatio).toSize();
  return fitted.expandedTo(QSize(1, 1)).boundedTo(room.expandedTo(QSize(1, 1)));
}

std::optional<QImage> PictureMaker::pictureOf(const AVFrame& frame, QSize size) {
  const Kind kind{QSize(frame.width, frame.height), size, frame.format, numberOf(frame.colorspace),
                  numberOf(frame.color_range)};
  if (!scaler_ || kind_ != kind) {
    scaler_ = makeScaler(frame, size);
    kind_ = kind;
  }
  Frame output = makeOutput(size);
  if (!scaler_ || !output) return std::nullopt;
  if (sws_scale_frame(scaler_.get(), output.get(), &frame) < 0) return std::nullopt;
  const auto format =
      isOf(frame, AV_PIX_FMT_FLAG_ALPHA) ? QImage::Format_ARGB32 : QImage::Format_RGB32;
  const AVFrame& filled = *output;
  const QImage shared(filled.data[0], size.width(), size.height(), filled.linesize[0], format);
  return inStandardColors(shared.copy(), frame);
}

QImage oriented(const QImage& picture, Orientation orientation) {
  if (orientation == Orientation()) return picture;
  const QImage upright = orientation.mirrored ? picture.mirrored(true, false) : picture;
  return upright.transformed(QTransform().rotate(90 * orientation.quarterTurns));
}

}  // namespace tarnloft::libav
