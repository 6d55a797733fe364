#include "platform/desktop/window/PortalSettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

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
    : m_portal(portal, QDBusConnection::sessionBus(), QDBusServiceWatcher::WatchForRegistration) {
  QDBusConnection::sessionBus().connect(portal, portalPath, settings,
                                        QStringLiteral("SettingChanged"), QStringLiteral("ssv"),
                                        this, SLOT(settingChanged(QDBusMessage)));
  connect(&m_portal, &QDBusServiceWatcher::serviceRegistered, this, [this] {
    for (const Follower& follower : m_followers) ask(follower);
  });
}

void PortalSettings::follow(const QString& group, const QString& key, Told told) {
  m_followers.push_back({group, key, std::move(told)});
  ask(m_followers.back());
}

// Behind the connection, so that no change falls between the two.
void PortalSettings::ask(const Follower& follower) {
  auto message =
      QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
  message << follower.group << follower.key;
  auto* watcher =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, told = follower.told] {
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    watcher->deleteLater();
    if (!reply.isError()) told(unwrapped(reply.value().variant()));
  });
}

void PortalSettings::settingChanged(const QDBusMessage& message) {
  const QVariantList told = message.arguments();
  for (const Follower& follower : m_followers) {
    if (follower.group != told.at(0).toString() || follower.key != told.at(1).toString()) continue;
    follower.told(unwrapped(told.at(2)));
  }
}

}  // namespace tarnloft
