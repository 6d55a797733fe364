#pragma once

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QVariant>

#include <chrono>
#include <functional>
#include <list>
#include <vector>

namespace tarnloft {

// What the desktop tells of itself through its settings portal. Nothing waits: a desktop without a
// portal answers late or not at all, and one that comes later is asked then. Main thread only.
class PortalSettings : public QObject {
  Q_OBJECT

 public:
  using Told = std::function<void(const QVariant& value)>;

  PortalSettings();

  // `told` is called when the value comes and after each change, never for a key that isn't there.
  void follow(const QString& group, const QString& key, Told told);

  // Takes the values that are on their way, for which it waits at most so long.
  void settle(std::chrono::milliseconds patience);

 private slots:
  void settingChanged(const QDBusMessage& message);

 private:
  struct Follower {
    QString group, key;
    Told told;
  };

  struct Question {
    QDBusPendingCall call;
    Told told;
  };

  void ask(const Follower& follower);
  void takeAnswers();

  std::vector<Follower> followers_;
  std::list<Question> asked_;  // and not answered
  QDBusServiceWatcher portal_;
};

}  // namespace tarnloft
