#pragma once

#include "controls/drawing/RoundedOutline.h"

#include <QColor>
#include <QSGGeometryNode>
#include <QSGRenderNode>
#include <QSGVertexColorMaterial>

#include <optional>

class QQuickWindow;

namespace tarnloft {

// What a RoundedRectangle shows, in points.
struct RoundedShape {
  RoundedOutline outline;
  QColor fill;
  QColor edge;

  // An opaque edge hides the fill's own rim, which would shine through where both are smoothed.
  RoundedOutline filled(const RoundedOutline& placed) const {
    return placed.inset(edge.alpha() == 255 ? placed.edge / 2 : 0);
  }
};

// For the software scene graph: paints the shape where it stands.
class PaintedRoundedNode : public QSGRenderNode {
 public:
  explicit PaintedRoundedNode(QQuickWindow* window) : window_(window) {}

  void show(const RoundedShape& shape);

  void render(const RenderState* state) override;
  RenderingFlags flags() const override { return BoundedRectRendering; }
  QRectF rect() const override;

 private:
  QQuickWindow* window_;
  RoundedShape shape_;
};

// For the others: triangles whose rims fade out over one pixel.
class MeshedRoundedNode : public QSGGeometryNode {
 public:
  MeshedRoundedNode();

  // Takes the pixels of a point, across and down.
  void show(const RoundedShape& shape, QSizeF pixelRatio);

  // Comes before each frame, when the places of all are known.
  void preprocess() override;

 private:
  QTransform toPixels() const;

  RoundedShape shape_;
  QSizeF pixelRatio_{1, 1};
  std::optional<RoundedOutline> placed_;  // what the triangles show
  QSGGeometry triangles_;
  QSGVertexColorMaterial colors_;
};

}  // namespace tarnloft
