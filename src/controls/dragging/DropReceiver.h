#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QMimeData;

namespace tarnloft {

// An item that drops land on. What is dropped stays where it came from, so every drop is a copy to
// its source. Those of other modules name it in full, which is how the registration of types finds
// it.
class DropReceiver : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS
  // Something that it takes hovers over it.
  Q_PROPERTY(bool targeted READ isTargeted NOTIFY targetedChanged)

 public:
  explicit DropReceiver(QQuickItem* parent = nullptr);

  bool isTargeted() const { return isTargeted_; }

 signals:
  void targetedChanged();

 protected:
  // Whether it wants what hovers. What it doesn't is left to what lies behind it.
  virtual bool takes(const QMimeData& data) const = 0;
  // Takes a drop; false if there was nothing to take after all.
  virtual bool take(const QMimeData& data) = 0;

  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void setTargeted(bool targeted);

  bool isTargeted_ = false;
};

}  // namespace tarnloft
