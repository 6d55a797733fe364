#pragma once

#include <QAbstractNativeEventFilter>
#include <QDBusServiceWatcher>
#include <QObject>

#include <cstdint>

namespace tarnloft {

// Whether the desktop has a tray for programs' icons, on the session bus or, on X11, by the
// selection that a tray owns there. The bus is asked without waiting. Main thread; needs a
// QGuiApplication.
class TrayHost : public QObject, private QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  TrayHost();

  bool isThere() const;

 signals:
  // A tray has come or gone.
  void changed();

 private slots:
  void askBus();

 private:
  void setOnBus(bool isOnBus);
  uint32_t owner() const;
  void watchOwner();
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  QDBusServiceWatcher busTray_;
  bool isOnBus_ = false;
  // Of the X server; 0 elsewhere.
  uint32_t selection_ = 0;
  uint32_t managerMessage_ = 0;
  uint32_t owner_ = 0;  // the tray's window, whose end is watched
};

}  // namespace tarnloft
