#include "controls/drawing/ShadowPicture.h"

#include <QCache>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>
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

QImage roundedRectangle(QSize bounds, int margin, int radius) {
  QImage image(bounds, QImage::Format_Alpha8);
  image.fill(0);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Qt::black);
  painter.drawRoundedRect(image.rect().adjusted(margin, margin, -margin, -margin), radius, radius);
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
  for (int y = 0; y < image.height(); ++y) {
    auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < image.width(); ++x)
      line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(*value++ * opacity)));
  }
  return image;
}

QImage shadow(const ShadowLook& look, QSize bounds) {
  Coverage coverage = coverageOf(roundedRectangle(bounds, look.extent(), look.radius));
  soften(coverage, look.blur);
  return blackWith(coverage, look.strength);
}

struct Key {
  ShadowLook look;
  QSize bounds;  // none for one that stretches

  friend bool operator==(const Key&, const Key&) = default;
  friend size_t qHash(const Key& key, size_t seed) {
    return qHashMulti(seed, key.look.radius, key.look.blur, key.look.strength, key.bounds.width(),
                      key.bounds.height());
  }
};

}  // namespace

ShadowPicture ShadowPicture::of(const ShadowLook& look, QSize bounds) {
  constexpr int mostKept = 4 << 20;  // bytes
  static QCache<Key, ShadowPicture> kept(mostKept);
  const int least = 2 * look.border() + 1;
  const bool isStretched = bounds.width() >= least && bounds.height() >= least;
  const Key key{look, isStretched ? QSize() : bounds};
  if (const ShadowPicture* const found = kept.object(key)) return *found;
  ShadowPicture made(shadow(look, isStretched ? QSize(least, least) : bounds),
                     isStretched ? look.border() : 0);
  kept.insert(key, new ShadowPicture(made), made.image_.sizeInBytes());
  return made;
}

ShadowPicture::ShadowPicture(QImage image, int border) : image_(std::move(image)), border_(border) {
  if (border_ == 0) return;
  constexpr int length = 64;
  const auto side = [this](const QRect& middle, const QSize& size) {
    return QPixmap::fromImage(image_.copy(middle).scaled(size));
  };
  const int end = border_ + 1;
  top_ = side({border_, 0, 1, border_}, {length, border_});
  bottom_ = side({border_, end, 1, border_}, {length, border_});
  left_ = side({0, border_, border_, 1}, {border_, length});
  right_ = side({end, border_, border_, 1}, {border_, length});
}

void ShadowPicture::paint(QPainter& painter, const QRect& bounds) const {
  if (border_ == 0) return painter.drawImage(bounds.topLeft(), image_);
  const QRect middle = bounds.adjusted(border_, border_, -border_, -border_);
  const int right = middle.right() + 1, below = middle.bottom() + 1, end = border_ + 1;
  for (const bool isRight : {false, true}) {
    for (const bool isBelow : {false, true}) {
      painter.drawImage(QPoint(isRight ? right : bounds.left(), isBelow ? below : bounds.top()),
                        image_, QRect(isRight ? end : 0, isBelow ? end : 0, border_, border_));
    }
  }
  painter.drawTiledPixmap(QRect(middle.left(), bounds.top(), middle.width(), border_), top_);
  painter.drawTiledPixmap(QRect(middle.left(), below, middle.width(), border_), bottom_);
  painter.drawTiledPixmap(QRect(bounds.left(), middle.top(), border_, middle.height()), left_);
  painter.drawTiledPixmap(QRect(right, middle.top(), border_, middle.height()), right_);
}

}  // namespace tarnloft
