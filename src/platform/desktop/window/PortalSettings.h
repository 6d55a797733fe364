#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QVariant>

#include <functional>
#include <vector>

namespace tarnloft {

// What the desktop tells of itself through its settings portal. Nothing waits: a desktop without a
// portal answers late or not at all. Main thread only.
class PortalSettings : public QObject {
  Q_OBJECT

 public:
  using Told = std::function<void(const QVariant& value)>;

  PortalSettings();

  // `told` is called when the value comes and after each change, never for a key that isn't there.
  void follow(const QString& group, const QString& key, Told told);

 private slots:
  void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

 private:
  struct Follower {
    QString group, key;
    Told told;
  };
  std::vector<Follower> m_followers;
};

}  // namespace tarnloft
