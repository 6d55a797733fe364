#include "controls/drawing/ShadowProvider.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarnloft {

namespace {

// The opacity of each pixel, row by row, from 0 to 255.
struct Coverage {
  QSize size;
  std::vector<float> values;
};

// One pass of a box blur along `length` values that lie `stride` apart.
void blurLine(float* line, int length, int stride, int radius, std::vector<float>& copy) {
  for (int i = 0; i < length; ++i) copy[i] = line[i * stride];
  float sum = 0;
  for (int i = 0; i < std::min(radius, length); ++i) sum += copy[i];
  for (int i = 0; i < length; ++i) {
    if (i + radius < length) sum += copy[i + radius];
    line[i * stride] = sum / static_cast<float>(2 * radius + 1);
    if (i >= radius) sum -= copy[i - radius];
  }
}

// Three box blurs come close to a Gaussian of the standard deviation `blur` / 2.
void soften(Coverage& coverage, int blur) {
  const int radius = std::max(1, blur / 2);
  const int width = coverage.size.width();
  const int height = coverage.size.height();
  std::vector<float> copy(std::max(width, height));
  for (int pass = 0; pass < 3; ++pass) {
    for (int y = 0; y < height; ++y) blurLine(&coverage.values[y * width], width, 1, radius, copy);
    for (int x = 0; x < width; ++x) blurLine(&coverage.values[x], height, width, radius, copy);
  }
}

QImage roundedRectangle(QSize rectangle, int margin, int radius, double ratio) {
  const QSize size = rectangle.grownBy({margin, margin, margin, margin});
  QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_Alpha8);
  image.fill(0);
  QPainter painter(&image);
  painter.scale(ratio, ratio);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  painter.drawRoundedRect(QRect(QPoint(margin, margin), rectangle), radius, radius);
  return image;
}

Coverage coverageOf(const QImage& image) {
  Coverage result{image.size(), {}};
  for (int y = 0; y < image.height(); ++y) {
    const uchar* line = image.constScanLine(y);
    result.values.insert(result.values.end(), line, line + image.width());
  }
  return result;
}

QImage blackWith(const Coverage& coverage, double opacity) {
  QImage image(coverage.size, QImage::Format_ARGB32_Premultiplied);
  auto value = coverage.values.begin();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      image.setPixel(x, y, qRgba(0, 0, 0, static_cast<int>(std::lround(*value++ * opacity))));
  return image;
}

}  // namespace

QImage ShadowProvider::requestImage(const QString& id, QSize* size, const QSize&) {
  const QStringList parts = id.split(QLatin1Char('/'));
  const auto number = [&parts](int index) { return parts.value(index).toInt(); };
  const int radius = number(0);
  const int blur = number(1);
  const double ratio = number(5) / 100.0;
  const auto side = [radius, blur](int given) {
    return given > 0 ? given : stretchableSide(radius, blur);
  };
  Coverage coverage =
      coverageOf(roundedRectangle({side(number(3)), side(number(4))}, extent(blur), radius, ratio));
  soften(coverage, qRound(blur * ratio));
  if (size) *size = coverage.size;
  return blackWith(coverage, number(2) / 100.0);
}

}  // namespace tarnloft
