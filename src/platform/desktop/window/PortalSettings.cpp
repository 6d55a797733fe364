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

PortalSettings::PortalSettings() {
  QDBusConnection::sessionBus().connect(portal, portalPath, settings,
                                        QStringLiteral("SettingChanged"), this,
                                        SLOT(settingChanged(QString, QString, QDBusVariant)));
}

void PortalSettings::follow(const QString& group, const QString& key, Told told) {
  auto message =
      QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
  message << group << key;
  auto* watcher =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, told] {
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    watcher->deleteLater();
    if (!reply.isError()) told(unwrapped(reply.value().variant()));
  });
  m_followers.push_back({group, key, std::move(told)});
}

void PortalSettings::settingChanged(const QString& group, const QString& key,
                                    const QDBusVariant& value) {
  for (const Follower& follower : m_followers)
    if (follower.group == group && follower.key == key) follower.told(unwrapped(value.variant()));
}

}  // namespace tarnloft
