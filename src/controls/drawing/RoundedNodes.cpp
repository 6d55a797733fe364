#include "controls/drawing/RoundedNodes.h"

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
  painter->setRenderHint(QPainter::Antialiasing);
  const RoundedOutline placed =
      shape_.outline.onPixels(painter->deviceTransform(), painter->device()->devicePixelRatioF());
  painter->fillPath(pathOf(shape_.filled(placed)), shape_.fill);
  if (placed.edge <= 0 || shape_.edge.alpha() == 0) return;
  QPainterPath edge = pathOf(placed);
  edge.addPath(pathOf(placed.inset(placed.edge)));
  painter->fillPath(edge, shape_.edge);
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
