#include "controls/loading/LazyItem.h"

#include "controls/loading/ItemMaking.h"

#include <utility>

namespace tarnloft {

void LazyItem::setActive(bool active) {
  if (std::exchange(isActive_, active) == active) return;
  emit activeChanged();
  renew();
}

void LazyItem::setSourceComponent(QQmlComponent* component) {
  if (std::exchange(component_, component) == component) return;
  emit sourceComponentChanged();
  drop();
  renew();
}

void LazyItem::componentComplete() {
  QQuickItem::componentComplete();
  renew();
}

void LazyItem::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.size() != before.size()) followSize();
}

void LazyItem::renew() {
  if (!isComponentComplete()) return;
  const bool isWanted = isActive_ && component_;
  if (isWanted && !item_) make();
  if (!isWanted) drop();
}

// It may be in the middle of a call.
void LazyItem::drop() {
  if (!item_) return;
  QQuickItem* const item = std::exchange(item_, nullptr);
  item->disconnect(this);
  item->setVisible(false);
  item->setParentItem(nullptr);
  item->deleteLater();
  setImplicitSize(0, 0);
  emit itemChanged();
}

void LazyItem::make() {
  const QQuickItem* const made = makeItem(*component_, *this, [this](QQuickItem& item) {
    item_ = &item;
    followSize();
    return QVariantMap();
  });
  if (!made) return;
  connect(item_, &QQuickItem::widthChanged, this, &LazyItem::followSize);
  connect(item_, &QQuickItem::heightChanged, this, &LazyItem::followSize);
  followSize();
  emit itemChanged();
}

void LazyItem::followSize() {
  if (!item_) return;
  if (widthValid()) item_->setWidth(width());
  if (heightValid()) item_->setHeight(height());
  setImplicitSize(item_->width(), item_->height());
}

}  // namespace tarnloft
