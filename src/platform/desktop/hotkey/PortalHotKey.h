#pragma once

#include "platform/GlobalHotKey.h"
#include "platform/SystemLog.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

namespace tarnloft {

// A key that the desktop's portal lends, the only way on Wayland. The desktop may know it under
// another combination than the one that is wished for. Never waits.
class PortalHotKey : public QObject, public GlobalHotKey {
  Q_OBJECT

 public:
  explicit PortalHotKey(SystemLog& log) : log_(log) {}

  void install(std::function<void()> pressed, std::function<void()> stateChanged) override;
  void update(quint32 keyCode, quint32 modifiers) override;
  State state() const override { return state_; }
  QString trigger() const override { return trigger_; }

 private slots:
  void sessionMade(const QDBusMessage& message);
  void listed(const QDBusMessage& message);
  void bound(const QDBusMessage& message);
  void activated(const QDBusMessage& message);

 private:
  // Its answer comes to the slot, unless another question or another key has come in between.
  void ask(const QString& method, QVariantList arguments, QVariantMap options, const char* slot);
  bool isAwaited(const QDBusMessage& message) const;
  void makeSession();
  void closeSession();
  void fail(uint code);
  void setState(State state, const QString& trigger = {});

  SystemLog& log_;
  QDBusServiceWatcher living_{QStringLiteral("org.freedesktop.portal.Desktop"),
                              QDBusConnection::sessionBus(),
                              QDBusServiceWatcher::WatchForUnregistration};
  QTimer rest_;
  std::function<void()> pressed_;
  std::function<void()> stateChanged_;
  QString wished_;   // as the portal writes it
  QString session_;  // empty for none
  int asked_ = 0;    // questions, each of which has a place of its own for the answer
  QString awaited_;  // the place of the newest one's
  State state_ = State::off;
  QString trigger_;
};

}  // namespace tarnloft
