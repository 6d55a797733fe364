#pragma once

#include "model/Error.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

namespace tarnloft {

// One piece of work of the desktop's package service: begins when it is made, and ends once, which
// is told; the owner deletes it. A service that says nothing for too long, or goes, ends it.
class PackageTransaction : public QObject {
  Q_OBJECT

 public:
  enum class Password { mayBeAsked, isNotAsked };

  struct Work {
    QString method;
    QVariantList arguments;
    Password password = Password::isNotAsked;
    // The last that is heard of it; may delete it in a later turn.
    std::function<void(const Result<void>&)> ended;
  };

  PackageTransaction(const QDBusConnection& bus, Work work, std::chrono::milliseconds patience);

  // Asks the service to stop, and ends at once.
  void cancel();

  static QString service();

 signals:
  // Packages that it names, as "name;version;architecture;source".
  void package(uint info, const QString& id);
  void detail(const QString& text, const QString& changelog);
  void progress(int percent);

 private slots:
  void told(const QDBusMessage& message);
  void propertiesChanged(const QDBusMessage& message);

 private:
  void create();
  void begin(const QString& path);
  void call(const QString& method, const QVariantList& arguments);
  void finish(uint exit);
  void end(const Result<void>& result);

  QDBusConnection bus_;
  const Work work_;
  QDBusServiceWatcher living_;
  QTimer silence_;
  QString path_;  // empty until the service has made one
  Error error_;
  bool isOver_ = false;
};

}  // namespace tarnloft
