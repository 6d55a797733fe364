#include "platform/desktop/window/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <iterator>
#include <utility>

namespace tarnloft {

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");

// Values come wrapped, some of them twice.
QVariant unwrapped(QVariant value) {
  while (value.userType() == qMetaTypeId<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

// The slot takes the message as it is: to connect one with the portal's own types fails, silently,
// as long as nobody has registered them.
PortalSettings::PortalSettings()
    : portal_(portal, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration) {
  QDBusConnection::sessionBus().connect(portal, portalPath, settings,
                                        QStringLiteral("SettingChanged"), QStringLiteral("ssv"),
                                        this, SLOT(settingChanged(QDBusMessage)));
  connect(&portal_, &QDBusServiceWatcher::serviceRegistered, this, [this] {
    for (const Follower& follower : followers_) ask(follower);
  });
}

void PortalSettings::follow(const QString& group, const QString& key, Told told) {
  followers_.push_back({group, key, std::move(told)});
  ask(followers_.back());
}

// Behind the connection, so that no change falls between the two.
void PortalSettings::ask(const Follower& follower) {
  auto message =
      QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
  message << follower.group << follower.key;
  asked_.push_back({QDBusConnection::sessionBus().asyncCall(message), follower.told});
  auto* const watcher = new QDBusPendingCallWatcher(asked_.back().call, this);
  connect(watcher, &QDBusPendingCallWatcher::finished, watcher, &QObject::deleteLater);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, &PortalSettings::takeAnswers);
}

void PortalSettings::takeAnswers() {
  std::list<Question> answered;
  for (auto each = asked_.begin(); each != asked_.end();) {
    const auto next = std::next(each);
    if (each->call.isFinished()) answered.splice(answered.end(), asked_, each);
    each = next;
  }
  for (const Question& question : answered) {
    const QDBusPendingReply<QDBusVariant> reply = question.call;
    if (!reply.isError()) question.told(unwrapped(reply.value().variant()));
  }
}

void PortalSettings::settle(std::chrono::milliseconds patience) {
  const QDeadlineTimer deadline(patience);
  const auto isOnItsWay = [](const Question& question) { return !question.call.isFinished(); };
  while (std::ranges::any_of(asked_, isOnItsWay) && !deadline.hasExpired()) QThread::msleep(1);
  takeAnswers();
}

void PortalSettings::settingChanged(const QDBusMessage& message) {
  const QVariantList told = message.arguments();
  for (const Follower& follower : followers_) {
    if (follower.group != told.at(0).toString() || follower.key != told.at(1).toString()) continue;
    follower.told(unwrapped(told.at(2)));
  }
}

}  // namespace tarnloft
