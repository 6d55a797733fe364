#pragma once

#include <QQmlComponent>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tarnloft {

// Makes a component's object while it is active, for QML: an item as large as this, or if this has
// no size of its own, this as large as the item; or a popup. The toolkit's own loader of this
// version refuses the components of files with bound ones.
//   Lazy { active: model.asking; RenameSheet { … } }
class Lazy : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
  Q_PROPERTY(QQmlComponent* sourceComponent READ sourceComponent WRITE setSourceComponent NOTIFY
                 sourceComponentChanged)
  Q_PROPERTY(QObject* object READ object NOTIFY objectChanged)
  Q_CLASSINFO("DefaultProperty", "sourceComponent")

 public:
  explicit Lazy(QQuickItem* parent = nullptr);
  ~Lazy() override;
  Q_DISABLE_COPY_MOVE(Lazy)

  bool isActive() const { return active_; }
  void setActive(bool active);
  QQmlComponent* sourceComponent() const { return component_; }
  void setSourceComponent(QQmlComponent* component);
  // Null while inactive.
  QObject* object() const { return object_.get(); }

 signals:
  void activeChanged();
  void sourceComponentChanged();
  void objectChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void renew();
  void fit();
  void followImplicitSize();

  bool active_ = true;
  QQmlComponent* component_ = nullptr;
  std::unique_ptr<QObject> object_;
};

}  // namespace tarnloft
