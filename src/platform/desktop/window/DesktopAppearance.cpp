#include "platform/desktop/window/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace tarnloft {

namespace {

const auto portal = QStringLiteral("org.freedesktop.portal.Desktop");
const auto portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto settings = QStringLiteral("org.freedesktop.portal.Settings");
const auto appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const auto schemeKey = QStringLiteral("color-scheme");

// The portal's values: 0 no preference, 1 dark, 2 light.
std::optional<bool> darkOf(QVariant value) {
  while (value.userType() == qMetaTypeId<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  switch (value.toUInt()) {
    case 1: return true;
    case 2: return false;
    default: return std::nullopt;
  }
}

bool paletteIsDark() {
  const QPalette palette = QGuiApplication::palette();
  return palette.color(QPalette::Window).lightnessF() <
         palette.color(QPalette::WindowText).lightnessF();
}

}  // namespace

DesktopAppearance::DesktopAppearance(QObject* parent) : QObject(parent), m_dark(paletteIsDark()) {
  qGuiApp->installEventFilter(this);
  QDBusConnection::sessionBus().connect(portal, portalPath, settings,
                                        QStringLiteral("SettingChanged"), this,
                                        SLOT(settingChanged(QString, QString, QDBusVariant)));
  askPortal();
}

void DesktopAppearance::setOverride(AppearanceOverride value) {
  m_override = value;
  update();
}

bool DesktopAppearance::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) update();
  return QObject::eventFilter(watched, event);
}

void DesktopAppearance::settingChanged(const QString& group, const QString& key,
                                       const QDBusVariant& value) {
  if (group != appearanceGroup || key != schemeKey) return;
  m_portalDark = darkOf(value.variant());
  update();
}

// Never waits: a desktop without a portal answers late or not at all.
void DesktopAppearance::askPortal() {
  auto message =
      QDBusMessage::createMethodCall(portal, portalPath, settings, QStringLiteral("Read"));
  message << appearanceGroup << schemeKey;
  auto* watcher =
      new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    const QDBusPendingReply<QDBusVariant> reply = *watcher;
    watcher->deleteLater();
    if (reply.isError()) return;
    m_portalDark = darkOf(reply.value().variant());
    update();
  });
}

void DesktopAppearance::update() {
  const bool dark = m_override == AppearanceOverride::none ? m_portalDark.value_or(paletteIsDark())
                                                           : m_override == AppearanceOverride::dark;
  if (dark == m_dark) return;
  m_dark = dark;
  emit darkChanged();
}

}  // namespace tarnloft
