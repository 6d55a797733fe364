#include "shell/Lazy.h"

#include <utility>

namespace tarnloft {

Lazy::Lazy(QQuickItem* parent) : QQuickItem(parent) {}

Lazy::~Lazy() = default;

void Lazy::setActive(bool active) {
  if (std::exchange(active_, active) == active) return;
  renew();
  emit activeChanged();
}

void Lazy::setSourceComponent(QQmlComponent* component) {
  if (std::exchange(component_, component) == component) return;
  renew();
  emit sourceComponentChanged();
}

void Lazy::componentComplete() {
  QQuickItem::componentComplete();
  renew();
}

void Lazy::renew() {
  if (!isComponentComplete()) return;
  // Whose handler called this may be in the object that goes.
  if (object_) object_.release()->deleteLater();
  if (active_ && component_) {
    QQmlContext* const context = component_->creationContext();
    object_.reset(component_->beginCreate(context));
    if (!object_) {
      qCritical("%s", qPrintable(component_->errorString()));
      return;
    }
    object_->setParent(this);
    if (auto* const item = qobject_cast<QQuickItem*>(object_.get())) {
      item->setParentItem(this);
      connect(item, &QQuickItem::implicitWidthChanged, this, &Lazy::followImplicitSize);
      connect(item, &QQuickItem::implicitHeightChanged, this, &Lazy::followImplicitSize);
    }
    component_->completeCreate();
    followImplicitSize();
    fit();
  }
  emit objectChanged();
}

void Lazy::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  fit();
}

void Lazy::followImplicitSize() {
  const auto* const item = qobject_cast<QQuickItem*>(object_.get());
  if (item) setImplicitSize(item->implicitWidth(), item->implicitHeight());
}

void Lazy::fit() {
  if (auto* const item = qobject_cast<QQuickItem*>(object_.get())) item->setSize(size());
}

}  // namespace tarnloft
