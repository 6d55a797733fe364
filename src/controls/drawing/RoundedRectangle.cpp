#include "controls/drawing/RoundedRectangle.h"

#include "controls/drawing/RoundedNodes.h"

#include <QSGRendererInterface>

#include <algorithm>
#include <cmath>

namespace tarnloft {

namespace {

template <typename Node>
Node* orNew(QSGNode* node, auto... arguments) {
  return node ? static_cast<Node*>(node) : new Node(arguments...);
}

// A window of 327 points at 1.25 has 409 pixels, and its scene is stretched over them.
QSizeF pixelsOfAPoint(const QQuickWindow& window) {
  const QSizeF points = window.size();
  const QSizeF pixels = (points * window.effectiveDevicePixelRatio()).toSize();
  return {pixels.width() / points.width(), pixels.height() / points.height()};
}

}  // namespace

RoundedRectangle::RoundedRectangle(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
  connect(this, &RoundedRectangle::changed, this, &RoundedRectangle::update);
}

void RoundedRectangle::itemChange(ItemChange change, const ItemChangeData& data) {
  QQuickItem::itemChange(change, data);
  if (change == ItemDevicePixelRatioHasChanged) update();
  if (change == ItemSceneChange) follow(data.window);
}

// Where pixels are as many as points or whole multiples, windows of all sizes are the same.
void RoundedRectangle::follow(QQuickWindow* window) {
  if (window_) window_->disconnect(this);
  window_ = window;
  if (!window || std::fmod(window->effectiveDevicePixelRatio(), 1) == 0) return;
  connect(window, &QWindow::widthChanged, this, &RoundedRectangle::update);
  connect(window, &QWindow::heightChanged, this, &RoundedRectangle::update);
}

QSGNode* RoundedRectangle::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  const bool hasEdge = edgeWidth_ > 0 && edgeColor_.alpha() > 0;
  if (width() <= 0 || height() <= 0 || (color_.alpha() == 0 && !hasEdge)) {
    delete node;
    return nullptr;
  }
  const qreal radius = std::clamp(radius_, 0.0, std::min(width(), height()) / 2);
  const RoundedShape shape{
      {QRectF(0, 0, width(), height()), radius, hasEdge ? edgeWidth_ : 0}, color_, edgeColor_};
  if (window()->rendererInterface()->graphicsApi() == QSGRendererInterface::Software) {
    auto* painted = orNew<PaintedRoundedNode>(node, window());
    painted->show(shape);
    return painted;
  }
  auto* meshed = orNew<MeshedRoundedNode>(node);
  meshed->show(shape, pixelsOfAPoint(*window()));
  return meshed;
}

}  // namespace tarnloft
