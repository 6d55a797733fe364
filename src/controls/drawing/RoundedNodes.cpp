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
      : m_fade(0.5 / pixelRatio),
        m_steps(std::clamp(static_cast<int>(std::ceil(1.5 * std::sqrt(radius * pixelRatio))) + 1, 2,
                           24)) {}

  void fill(const RoundedOutline& outline, const QColor& color) {
    if (color.alpha() == 0) return;
    ring(outline.inset(-m_fade), Qt::transparent);
    ring(outline.inset(m_fade), color);
    join();
    const int first = static_cast<int>(m_points.size()) - ringSize();
    for (int i = 1; i + 1 < ringSize(); ++i) triangle(first, first + i, first + i + 1);
  }

  void edge(const RoundedOutline& outline, const QColor& color) {
    if (color.alpha() == 0 || outline.edge <= 0) return;
    ring(outline.inset(-m_fade), Qt::transparent);
    ring(outline.inset(m_fade), color);
    join();
    ring(outline.inset(outline.edge - m_fade), color);
    join();
    ring(outline.inset(outline.edge + m_fade), Qt::transparent);
    join();
  }

  void writeTo(QSGGeometry& geometry) const {
    geometry.allocate(static_cast<int>(m_points.size()), static_cast<int>(m_indices.size()));
    std::copy(m_points.begin(), m_points.end(), geometry.vertexDataAsColoredPoint2D());
    std::copy(m_indices.begin(), m_indices.end(), geometry.indexDataAsUShort());
  }

 private:
  int ringSize() const { return 4 * (m_steps + 1); }

  void ring(const RoundedOutline& outline, const QColor& color) {
    const QRectF& r = outline.rectangle;
    const qreal radius = outline.radius;
    const std::array middles{QPointF(r.right() - radius, r.top() + radius),
                             QPointF(r.left() + radius, r.top() + radius),
                             QPointF(r.left() + radius, r.bottom() - radius),
                             QPointF(r.right() - radius, r.bottom() - radius)};
    for (int corner = 0; corner < 4; ++corner)
      for (int step = 0; step <= m_steps; ++step) {
        const qreal angle = M_PI_2 * (corner + static_cast<qreal>(step) / m_steps);
        point(middles.at(corner) + radius * QPointF(std::cos(angle), -std::sin(angle)), color);
      }
  }

  void point(const QPointF& place, const QColor& color) {
    const QRgb rgb = qPremultiply(color.rgba());
    const auto byte = [](int value) { return static_cast<uchar>(value); };
    QSGGeometry::ColoredPoint2D result{};
    result.set(static_cast<float>(place.x()), static_cast<float>(place.y()), byte(qRed(rgb)),
               byte(qGreen(rgb)), byte(qBlue(rgb)), byte(qAlpha(rgb)));
    m_points.push_back(result);
  }

  // The last ring with the one before.
  void join() {
    const int inner = static_cast<int>(m_points.size()) - ringSize();
    const int outer = inner - ringSize();
    for (int i = 0; i < ringSize(); ++i) {
      const int next = (i + 1) % ringSize();
      triangle(outer + i, inner + i, outer + next);
      triangle(outer + next, inner + i, inner + next);
    }
  }

  void triangle(int a, int b, int c) {
    for (const int index : {a, b, c}) m_indices.push_back(static_cast<quint16>(index));
  }

  qreal m_fade;
  int m_steps;  // of a quarter circle
  std::vector<QSGGeometry::ColoredPoint2D> m_points;
  std::vector<quint16> m_indices;
};

}  // namespace

void PaintedRoundedNode::show(const RoundedShape& shape) {
  m_shape = shape;
  markDirty(DirtyMaterial | DirtyGeometry);
}

QRectF PaintedRoundedNode::rect() const {
  return m_shape.outline.rectangle.adjusted(-1, -1, 1, 1);  // a side may move by half a pixel
}

void PaintedRoundedNode::render(const RenderState* state) {
  auto* painter = static_cast<QPainter*>(
      m_window->rendererInterface()->getResource(m_window, QSGRendererInterface::PainterResource));
  painter->setClipRegion(*state->clipRegion(), Qt::ReplaceClip);
  painter->setTransform(matrix()->toTransform());
  painter->setOpacity(inheritedOpacity());
  painter->setRenderHint(QPainter::Antialiasing);
  const RoundedOutline placed =
      m_shape.outline.onPixels(painter->deviceTransform(), painter->device()->devicePixelRatioF());
  painter->fillPath(pathOf(m_shape.filled(placed)), m_shape.fill);
  if (placed.edge <= 0 || m_shape.edge.alpha() == 0) return;
  QPainterPath edge = pathOf(placed);
  edge.addPath(pathOf(placed.inset(placed.edge)));
  painter->fillPath(edge, m_shape.edge);
}

MeshedRoundedNode::MeshedRoundedNode()
    : m_triangles(QSGGeometry::defaultAttributes_ColoredPoint2D(), 0, 0,
                  QSGGeometry::UnsignedShortType) {
  m_triangles.setDrawingMode(QSGGeometry::DrawTriangles);
  setGeometry(&m_triangles);
  setMaterial(&m_colors);
  setFlag(UsePreprocess);
}

void MeshedRoundedNode::show(const RoundedShape& shape, QSizeF pixelRatio) {
  m_shape = shape;
  m_pixelRatio = pixelRatio;
  m_placed.reset();
}

void MeshedRoundedNode::preprocess() {
  const RoundedOutline placed = m_shape.outline.onPixels(toPixels(), m_pixelRatio.width());
  if (m_placed == placed) return;
  m_placed = placed;
  Mesh mesh(m_pixelRatio.width(), placed.radius);
  mesh.fill(m_shape.filled(placed), m_shape.fill);
  mesh.edge(placed, m_shape.edge);
  mesh.writeTo(m_triangles);
  markDirty(DirtyGeometry);
}

QTransform MeshedRoundedNode::toPixels() const {
  QMatrix4x4 matrix;
  for (const QSGNode* node = parent(); node; node = node->parent())
    if (node->type() == TransformNodeType)
      matrix = static_cast<const QSGTransformNode*>(node)->matrix() * matrix;
  return matrix.toTransform() * QTransform::fromScale(m_pixelRatio.width(), m_pixelRatio.height());
}

}  // namespace tarnloft
