#pragma once

#include <QObject>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace tarnloft {

// How far from its new place a thing is still drawn after its place has jumped: it springs there
// while `active`. Layout and hit tests know the new place at once.
//   Item { y: …; Rectangle { y: slide.offset } SettlingOffset { id: slide; y: parent.y } }
class SettlingOffset : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(double y READ y WRITE setY NOTIFY yChanged REQUIRED)
  Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged REQUIRED)
  Q_PROPERTY(double offset READ offset NOTIFY offsetChanged)

 public:
  explicit SettlingOffset(QObject* parent = nullptr);

  double y() const { return y_; }
  void setY(double y);
  bool isActive() const { return isActive_; }
  void setActive(bool active);
  double offset() const { return offset_; }

 signals:
  void yChanged();
  void activeChanged();
  void offsetChanged();

 private:
  void settleFrom(double offset);
  void setOffset(double offset);

  double y_ = 0;
  double offset_ = 0;
  bool isActive_ = false;
  bool isPlaced_ = false;
  std::unique_ptr<QVariantAnimation> spring_;  // made at the first jump
};

}  // namespace tarnloft
