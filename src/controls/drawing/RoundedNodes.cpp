#include "controls/drawing/RoundedNodes.h"

#include <QCache>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace tarnloft {

namespace {

QPainterPath pathOf(const RoundedOutline& outline) {
  QPainterPath path;
  path.addRoundedRect(outline.rectangle, outline.radius, outline.radius);
  return path;
}

void paint(QPainter& painter, const RoundedShape& shape, const RoundedOutline& placed) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(pathOf(shape.filled(placed)), shape.fill);
  if (placed.edge <= 0 || shape.edge.alpha() == 0) return;
  QPainterPath edge = pathOf(placed);
  edge.addPath(pathOf(placed.inset(placed.edge)));
  painter.fillPath(edge, shape.edge);
}

// The four corners of a shape side by side, in pixels.
struct CornerLook {
  int side = 0;  // of one corner
  qreal radius = 0;
  int edge = 0;
  QRgb fill = 0;
  QRgb edgeColor = 0;

  friend bool operator==(const CornerLook&, const CornerLook&) = default;
  friend size_t qHash(const CornerLook& look, size_t seed) {
    return qHashMulti(seed, look.side, look.radius, look.edge, look.fill, look.edgeColor);
  }
};

// Smoothed paths take most of a frame's time, and the same few corners come again and again.
QImage cornersOf(const CornerLook& look, const RoundedShape& shape) {
  constexpr int mostKept = 512 << 10;  // bytes
  static QCache<CornerLook, QImage> kept(mostKept);
  if (const QImage* const found = kept.object(look)) return *found;
  QImage image(2 * look.side, 2 * look.side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  paint(painter, shape, {QRectF(image.rect()), look.radius, qreal(look.edge)});
  painter.end();
  kept.insert(look, new QImage(image), image.sizeInBytes());
  return image;
}

// The same where the outline lies on whole pixels, with its corners as pictures and its straight
// parts as plain rectangles. False if it doesn't, or is all corners.
bool paintOnPixels(QPainter& painter, const RoundedShape& shape, const RoundedOutline& placed) {
  constexpr qreal hair = 1e-3;
  const QTransform toPixels = painter.deviceTransform();
  const QRectF exact = toPixels.mapRect(placed.rectangle);
  const QRect all = exact.toRect();
  const qreal scale = toPixels.m11();
  const bool isWhole = std::abs(exact.left() - all.left()) < hair &&
                       std::abs(exact.top() - all.top()) < hair &&
                       std::abs(exact.right() - all.right() - 1) < hair &&
                       std::abs(exact.bottom() - all.bottom() - 1) < hair;
  const int edge = shape.edge.alpha() > 0 ? qRound(placed.edge * scale) : 0;
  const qreal radius = placed.radius * scale;
  const int side = std::max(int(std::ceil(radius - hair)), edge);
  const QRect flat = all.adjusted(side, side, -side, -side);
  if (toPixels.type() > QTransform::TxScale || !isWhole || flat.isEmpty()) return false;

  painter.resetTransform();
  painter.setTransform(painter.deviceTransform().inverted());  // which knows the scale
  painter.setRenderHint(QPainter::Antialiasing, false);
  const auto bands = [&](int depth, const QColor& color) {
    painter.fillRect(flat.left(), all.top(), flat.width(), depth, color);
    painter.fillRect(flat.left(), all.bottom() + 1 - depth, flat.width(), depth, color);
  };
  if (shape.fill.alpha() > 0) {
    painter.fillRect(all.left(), flat.top(), all.width(), flat.height(), shape.fill);
    bands(side, shape.fill);
  }
  if (edge > 0) {
    painter.fillRect(all.left(), flat.top(), edge, flat.height(), shape.edge);
    painter.fillRect(all.right() + 1 - edge, flat.top(), edge, flat.height(), shape.edge);
    bands(edge, shape.edge);
  }
  if (side == 0) return true;
  const QImage corners =
      cornersOf({side, radius, edge, shape.fill.rgba(), shape.edge.rgba()}, shape);
  for (const int right : {0, 1}) {
    for (const int below : {0, 1}) {
      const QPoint place(right ? flat.right() + 1 : all.left(),
                         below ? flat.bottom() + 1 : all.top());
      painter.drawImage(place, corners, QRect(right * side, below * side, side, side));
    }
  }
  return true;
}

// Triangles between rings of the same number of points.
class Mesh {
 public:
  Mesh(qreal pixelRatio, qreal radius)
      : fade_(0.5 / pixelRatio),
        steps_(std::clamp(static_cast<int>(std::ceil(1.5 * std::sqrt(radius * pixelRatio))) + 1, 2,
                          24)) {}

  void fill(const RoundedOutline& outline, const QColor& color) {
    if (color.alpha() == 0) return;
    ring(outline.inset(-fade_), Qt::transparent);
    ring(outline.inset(fade_), color);
    join();
    const int first = static_cast<int>(points_.size()) - ringSize();
    for (int i = 1; i + 1 < ringSize(); ++i) triangle(first, first + i, first + i + 1);
  }

  void edge(const RoundedOutline& outline, const QColor& color) {
    if (color.alpha() == 0 || outline.edge <= 0) return;
    ring(outline.inset(-fade_), Qt::transparent);
    ring(outline.inset(fade_), color);
    join();
    ring(outline.inset(outline.edge - fade_), color);
    join();
    ring(outline.inset(outline.edge + fade_), Qt::transparent);
    join();
  }

  void writeTo(QSGGeometry& geometry) const {
    geometry.allocate(static_cast<int>(points_.size()), static_cast<int>(indices_.size()));
    std::copy(points_.begin(), points_.end(), geometry.vertexDataAsColoredPoint2D());
    std::copy(indices_.begin(), indices_.end(), geometry.indexDataAsUShort());
  }

 private:
  int ringSize() const { return 4 * (steps_ + 1); }

  void ring(const RoundedOutline& outline, const QColor& color) {
    const QRectF& r = outline.rectangle;
    const qreal radius = outline.radius;
    const std::array middles{QPointF(r.right() - radius, r.top() + radius),
                             QPointF(r.left() + radius, r.top() + radius),
                             QPointF(r.left() + radius, r.bottom() - radius),
                             QPointF(r.right() - radius, r.bottom() - radius)};
    for (int corner = 0; corner < 4; ++corner)
      for (int step = 0; step <= steps_; ++step) {
        const qreal angle = M_PI_2 * (corner + static_cast<qreal>(step) / steps_);
        point(middles.at(corner) + radius * QPointF(std::cos(angle), -std::sin(angle)), color);
      }
  }

  void point(const QPointF& place, const QColor& color) {
    const QRgb rgb = qPremultiply(color.rgba());
    const auto byte = [](int value) { return static_cast<uchar>(value); };
    QSGGeometry::ColoredPoint2D result{};
    result.set(static_cast<float>(place.x()), static_cast<float>(place.y()), byte(qRed(rgb)),
               byte(qGreen(rgb)), byte(qBlue(rgb)), byte(qAlpha(rgb)));
    points_.push_back(result);
  }

  // The last ring with the one before.
  void join() {
    const int inner = static_cast<int>(points_.size()) - ringSize();
    const int outer = inner - ringSize();
    for (int i = 0; i < ringSize(); ++i) {
      const int next = (i + 1) % ringSize();
      triangle(outer + i, inner + i, outer + next);
      triangle(outer + next, inner + i, inner + next);
    }
  }

  void triangle(int a, int b, int c) {
    for (const int index : {a, b, c}) indices_.push_back(static_cast<quint16>(index));
  }

  qreal fade_;
  int steps_;  // of a quarter circle
  std::vector<QSGGeometry::ColoredPoint2D> points_;
  std::vector<quint16> indices_;
};

}  // namespace

void PaintedRoundedNode::show(const RoundedShape& shape) {
  shape_ = shape;
  markDirty(DirtyMaterial | DirtyGeometry);
}

QRectF PaintedRoundedNode::rect() const {
  return shape_.outline.rectangle.adjusted(-1, -1, 1, 1);  // a side may move by half a pixel
}

void PaintedRoundedNode::render(const RenderState* state) {
  auto* painter = static_cast<QPainter*>(
      window_->rendererInterface()->getResource(window_, QSGRendererInterface::PainterResource));
  painter->setClipRegion(*state->clipRegion(), Qt::ReplaceClip);
  painter->setTransform(matrix()->toTransform());
  painter->setOpacity(inheritedOpacity());
  const RoundedOutline placed =
      shape_.outline.onPixels(painter->deviceTransform(), painter->device()->devicePixelRatioF());
  if (!paintOnPixels(*painter, shape_, placed)) paint(*painter, shape_, placed);
}

MeshedRoundedNode::MeshedRoundedNode()
    : triangles_(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0, 0,
                 QSGGeometry::UnsignedShortType) {
  triangles_.setDrawingMode(QSGGeometry::DrawTriangles);
  setGeometry(&triangles_);
  setMaterial(&colors_);
  setFlag(UsePreprocess);
}

void MeshedRoundedNode::show(const RoundedShape& shape, QSizeF pixelRatio) {
  shape_ = shape;
  pixelRatio_ = pixelRatio;
  placed_.reset();
}

void MeshedRoundedNode::preprocess() {
  const RoundedOutline placed = shape_.outline.onPixels(toPixels(), pixelRatio_.width());
  if (placed_ == placed) return;
  placed_ = placed;
  Mesh mesh(pixelRatio_.width(), placed.radius);
  mesh.fill(shape_.filled(placed), shape_.fill);
  mesh.edge(placed, shape_.edge);
  mesh.writeTo(triangles_);
  markDirty(DirtyGeometry);
}

QTransform MeshedRoundedNode::toPixels() const {
  QMatrix4x4 matrix;
  for (const QSGNode* node = parent(); node; node = node->parent())
    if (node->type() == TransformNodeType)
      matrix = static_cast<const QSGTransformNode*>(node)->matrix() * matrix;
  return matrix.toTransform() * QTransform::fromScale(pixelRatio_.width(), pixelRatio_.height());
}

}  // namespace tarnloft
