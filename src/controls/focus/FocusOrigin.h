#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Whether the user last worked by keyboard or by pointer, for QML: focus is marked only where the
// keyboard moved it.
class FocusOrigin : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool keyboard READ isKeyboard NOTIFY keyboardChanged)

 public:
  explicit FocusOrigin(QObject* parent = nullptr);

  bool isKeyboard() const { return keyboard_; }
  bool eventFilter(QObject* watched, QEvent* event) override;

 signals:
  void keyboardChanged();

 private:
  void set(bool keyboard);

  bool keyboard_ = false;
};

}  // namespace tarnloft
