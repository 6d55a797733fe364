#include "controls/drawing/Shadow.h"

#include "controls/drawing/ShadowPicture.h"

#include <QPainter>
#include <QQuickWindow>
#include <QSGNinePatchNode>
#include <QSGRenderNode>
#include <QSGRendererInterface>

namespace tarnloft {

namespace {

// What a shadow shows, in points.
struct Shape {
  QRectF bounds;
  qreal radius;
  qreal blur;
  qreal strength;

  ShadowLook look(qreal ratio) const {
    return {qRound(radius * ratio), qRound(blur * ratio), strength};
  }
};

// For the software scene graph. A popup that grows as it comes has its final corners at once.
class PaintedShadow : public QSGRenderNode {
 public:
  explicit PaintedShadow(QQuickWindow* window) : window_(window) {}

  void show(const Shape& shape) {
    shape_ = shape;
    markDirty(DirtyMaterial | DirtyGeometry);
  }

  void render(const RenderState* state) override {
    auto* painter = static_cast<QPainter*>(
        window_->rendererInterface()->getResource(window_, QSGRendererInterface::PainterResource));
    painter->setClipRegion(*state->clipRegion(), Qt::ReplaceClip);
    painter->setTransform(matrix()->toTransform());
    painter->setOpacity(inheritedOpacity());
    const QRect bounds = painter->deviceTransform().mapRect(shape_.bounds).toRect();
    painter->resetTransform();
    painter->setTransform(painter->deviceTransform().inverted());  // which knows the scale
    ShadowPicture::of(shape_.look(painter->device()->devicePixelRatioF()), bounds.size())
        .paint(*painter, bounds);
  }
  RenderingFlags flags() const override { return BoundedRectRendering; }
  QRectF rect() const override { return shape_.bounds.adjusted(-1, -1, 1, 1); }

 private:
  QQuickWindow* window_;
  Shape shape_{};
};

}  // namespace

Shadow::Shadow(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
  setEnabled(false);
  connect(this, &Shadow::changed, this, &Shadow::update);
}

void Shadow::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) update();
}

QSGNode* Shadow::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  if (width() <= 0 || height() <= 0 || blur_ <= 0) {
    delete node;
    return nullptr;
  }
  const qreal extent = 2 * blur_;
  const Shape shape{boundingRect().adjusted(-extent, drop_ - extent, extent, drop_ + extent),
                    radius_, blur_, strength_};
  if (window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software) {
    auto* painted = node ? static_cast<PaintedShadow*>(node) : new PaintedShadow(window());
    painted->show(shape);
    return painted;
  }
  const qreal ratio = window()->effectiveDevicePixelRatio();
  const auto picture = ShadowPicture::of(shape.look(ratio), (shape.bounds.size() * ratio).toSize());
  auto* patched = node ? static_cast<QSGNinePatchNode*>(node) : window()->createNinePatchNode();
  patched->setTexture(window()->createTextureFromImage(picture.image()));
  patched->setDevicePixelRatio(ratio);
  const qreal border = picture.border() / ratio;  // in points, which no document says
  patched->setPadding(border, border, border, border);
  patched->setBounds(shape.bounds);
  patched->update();
  return patched;
}

}  // namespace tarnloft
