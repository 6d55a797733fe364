#include "platform/desktop/window/PortalColorPicker.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QRandomGenerator>

#include <utility>

namespace tarnloft {
namespace {

const QString portal = QStringLiteral("org.freedesktop.portal.Desktop");

// Where the answer will come from, known before the call so that it can't be missed.
QString requestPath(const QDBusConnection& bus, const QString& token) {
  QString sender = bus.baseService().mid(1);
  sender.replace(QLatin1Char('.'), QLatin1Char('_'));
  return QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2").arg(sender, token);
}

std::optional<SampledColor> colorOf(const QVariantMap& results) {
  const QVariant value = results.value(QStringLiteral("color"));
  if (!value.canConvert<QDBusArgument>()) return std::nullopt;
  const auto argument = value.value<QDBusArgument>();
  if (argument.currentSignature() != QLatin1String("(ddd)")) return std::nullopt;
  SampledColor color;
  argument.beginStructure();
  argument >> color.red >> color.green >> color.blue;
  argument.endStructure();
  return color;
}

}  // namespace

void PortalColorPicker::pick(Done done, std::function<void(const QString& reason)> unavailable) {
  done_ = std::move(done);
  QDBusConnection bus = QDBusConnection::sessionBus();
  const QString token = QStringLiteral("tarnloft%1").arg(QRandomGenerator::system()->generate());
  bus.connect(portal, requestPath(bus, token), QStringLiteral("org.freedesktop.portal.Request"),
              QStringLiteral("Response"), this, SLOT(answered(QDBusMessage)));
  QDBusMessage call = QDBusMessage::createMethodCall(
      portal, QStringLiteral("/org/freedesktop/portal/desktop"),
      QStringLiteral("org.freedesktop.portal.Screenshot"), QStringLiteral("PickColor"));
  call << QString() << QVariantMap{{QStringLiteral("handle_token"), token}};
  auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(watcher, &QDBusPendingCallWatcher::finished, this,
          [watcher, unavailable = std::move(unavailable)] {
            watcher->deleteLater();
            if (watcher->isError()) unavailable(watcher->error().message());
          });
}

void PortalColorPicker::answered(const QDBusMessage& message) {
  const QVariantList arguments = message.arguments();
  if (arguments.size() != 2 || !done_) return;
  const bool chosen = arguments.at(0).toUInt() == 0;
  const auto results = qdbus_cast<QVariantMap>(arguments.at(1));
  std::exchange(done_, {})(chosen ? colorOf(results) : std::nullopt);
}

}  // namespace tarnloft
