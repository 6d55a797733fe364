#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

#include <functional>

namespace tarnloft {

// Another program on the session bus for as long as it lives, with a connection of its own: it
// answers every call, whatever the path.
class BusService : public QDBusVirtualObject {
 public:
  // The reply to a call, or an error.
  using Answer = std::function<QDBusMessage(const QDBusMessage& call)>;

  BusService(const QString& name, Answer answer) : name_(name), answer_(std::move(answer)) {
    if (!bus.registerVirtualObject("/", this, QDBusConnection::SubPath) ||
        !bus.registerService(name_)) {
      qFatal("no session bus");
    }
  }
  ~BusService() override {
    leave();
    bus.unregisterObject("/", QDBusConnection::UnregisterTree);
    QDBusConnection::disconnectFromBus(bus.name());
  }
  Q_DISABLE_COPY_MOVE(BusService)

  void tell(const QString& path, const QString& interface, const QString& signal,
            const QVariantList& arguments) const {
    auto told = QDBusMessage::createSignal(path, interface, signal);
    told.setArguments(arguments);
    bus.send(told);
  }
  void leave() { bus.unregisterService(name_); }

  QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& call, const QDBusConnection& /*bus*/) override {
    return bus.send(answer_(call));
  }

  QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "other");

 private:
  QString name_;
  Answer answer_;
};

inline QDBusMessage refusal(const QDBusMessage& call) {
  return call.createErrorReply(QDBusError::NotSupported, call.member());
}

}  // namespace tarnloft
