#include "platform/desktop/clips/LibavColors.h"

#include <QColorSpace>

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace tarnloft::libav {
namespace {

constexpr double whiteLight =
    203;  // cd/m² of a white sheet in a picture of high range, ITU BT.2408
constexpr double brightestLight = 1000;  // cd/m² of the display that such a picture is made for

struct Primaries {
  QPointF red, green, blue;
};

constexpr QPointF daylight(0.3127, 0.3290);
constexpr Primaries cinema{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}};
constexpr Primaries television{{0.708, 0.292}, {0.170, 0.797}, {0.131, 0.046}};  // ITU BT.2020

// None for those that are sRGB's, or as good as that.
std::optional<Primaries> primariesOf(const AVFrame& frame) {
  switch (numberOf(frame.color_primaries)) {
    case AVCOL_PRI_BT2020: return television;
    case AVCOL_PRI_SMPTE431:
    case AVCOL_PRI_SMPTE432: return cinema;
    default: return std::nullopt;
  }
}

// cd/m² of a signal from 0 to 1, SMPTE ST 2084.
double lightOfPerceptual(double signal) {
  constexpr double m1 = 2610.0 / 16384, m2 = 2523.0 / 32, c1 = 3424.0 / 4096, c2 = 2413.0 / 128,
                   c3 = 2392.0 / 128;
  const double root = std::pow(signal, 1 / m2);
  return 10000 * std::pow(std::max(root - c1, 0.0) / (c2 - c3 * root), 1 / m1);
}

// The same, ARIB STD-B67 with the display of ITU BT.2100.
double lightOfHybrid(double signal) {
  constexpr double a = 0.17883277, b = 0.28466892, c = 0.55991073, systemGamma = 1.2;
  const double scene = signal <= 0.5 ? signal * signal / 3 : (std::exp((signal - c) / a) + b) / 12;
  return brightestLight * std::pow(scene, systemGamma);
}

// Light as a part of white, from 0 to 1: most of it as it is, what is brighter bent to stay
// below 1.
double bent(double light) {
  constexpr double bend = 0.7;
  const double part = light / whiteLight;
  return part <= bend ? part : bend + (1 - bend) * (1 - std::exp((bend - part) / (1 - bend)));
}

// As sRGB codes it.
double coded(double light) {
  return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

using Curve = std::array<uchar, 256>;

Curve curveOf(double (*lightOf)(double)) {
  Curve curve;
  for (size_t i = 0; i < curve.size(); ++i) {
    curve[i] = uchar(std::lround(255 * coded(bent(lightOf(double(i) / 255)))));
  }
  return curve;
}

// Null for a picture without a high range.
const Curve* curveOf(int transfer) {
  static const Curve perceptual = curveOf(lightOfPerceptual), hybrid = curveOf(lightOfHybrid);
  if (transfer == AVCOL_TRC_SMPTE2084) return &perceptual;
  return transfer == AVCOL_TRC_ARIB_STD_B67 ? &hybrid : nullptr;
}

void apply(const Curve& curve, QImage& picture) {
  for (int y = 0; y < picture.height(); ++y) {
    auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    std::transform(row, row + picture.width(), row, [&](QRgb color) {
      return qRgba(curve[size_t(qRed(color))], curve[size_t(qGreen(color))],
                   curve[size_t(qBlue(color))], qAlpha(color));
    });
  }
}

}  // namespace

QImage inStandardColors(const QImage& picture, const AVFrame& frame) {
  QImage converted = picture;
  if (const Curve* curve = curveOf(numberOf(frame.color_trc))) apply(*curve, converted);
  const auto primaries = primariesOf(frame);
  if (!primaries) return converted;
  const auto& [red, green, blue] = *primaries;
  converted.setColorSpace({daylight, red, green, blue, QColorSpace::TransferFunction::SRgb});
  converted.convertToColorSpace(QColorSpace::SRgb);
  converted.setColorSpace({});
  return converted;
}

}  // namespace tarnloft::libav
