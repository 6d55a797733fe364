#pragma once

#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// An item that exists only while it is wanted:
//   LazyItem { active: hover.hovered; sourceComponent: Badge { … } }
// As large as that item, which takes the size that this one is given. The toolkit's own Loader
// can't make components of files whose components are bound.
class LazyItem : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
  Q_PROPERTY(QQmlComponent* sourceComponent READ sourceComponent WRITE setSourceComponent NOTIFY
                 sourceComponentChanged)
  Q_PROPERTY(QQuickItem* item READ item NOTIFY itemChanged)

 public:
  explicit LazyItem(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

  bool isActive() const { return isActive_; }
  void setActive(bool active);
  QQmlComponent* sourceComponent() const { return component_; }
  void setSourceComponent(QQmlComponent* component);
  QQuickItem* item() const { return item_; }

 signals:
  void activeChanged();
  void sourceComponentChanged();
  void itemChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void renew();
  void drop();
  void make();
  void followSize();

  bool isActive_ = true;
  QQmlComponent* component_ = nullptr;
  QQuickItem* item_ = nullptr;  // owned
};

}  // namespace tarnloft
