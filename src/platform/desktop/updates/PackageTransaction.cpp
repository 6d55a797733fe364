#include "platform/desktop/updates/PackageTransaction.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <limits>
#include <utility>

namespace tarnloft {
namespace {

const auto packageKit = QStringLiteral("org.freedesktop.PackageKit");
const auto transaction = QStringLiteral("org.freedesktop.PackageKit.Transaction");
const auto properties = QStringLiteral("org.freedesktop.DBus.Properties");

// The service's own numbers.
constexpr uint exitSuccess = 1;
constexpr uint errorNotAuthorized = 48;
constexpr uint mostPercent = 100;  // more means that it doesn't know

constexpr qsizetype mostOfReason = 300;

// What tools have printed may stand in it.
QString shortened(const QString& reason) {
  const QString line = reason.simplified();
  return line.size() <= mostOfReason ? line : line.first(mostOfReason) + QStringLiteral("…");
}

}  // namespace

PackageTransaction::PackageTransaction(const QDBusConnection& bus, Work work,
                                       std::chrono::milliseconds patience)
    : bus_(bus),
      work_(std::move(work)),
      living_(service(), bus, QDBusServiceWatcher::WatchForUnregistration) {
  connect(&living_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
    end(failure(ErrorKind::io, QStringLiteral("The system's package service has stopped")));
  });
  silence_.setSingleShot(true);
  silence_.setInterval(patience);
  connect(&silence_, &QTimer::timeout, this, [this] {
    if (!path_.isEmpty()) call(QStringLiteral("Cancel"), {});
    end(failure(ErrorKind::io, QStringLiteral("The system's package service doesn't answer")));
  });
  silence_.start();
  create();
}

QString PackageTransaction::service() { return packageKit; }

void PackageTransaction::create() {
  const auto message =
      QDBusMessage::createMethodCall(packageKit, QStringLiteral("/org/freedesktop/PackageKit"),
                                     packageKit, QStringLiteral("CreateTransaction"));
  auto* const made =
      new QDBusPendingCallWatcher(bus_.asyncCall(message, std::numeric_limits<int>::max()), this);
  connect(made, &QDBusPendingCallWatcher::finished, this, [this, made] {
    made->deleteLater();
    const QDBusPendingReply<QDBusObjectPath> reply = *made;
    if (isOver_) return;
    if (reply.isError()) return end(failure(ErrorKind::io, shortened(reply.error().message())));
    begin(reply.value().path());
  });
}

// All that it tells is awaited before it is asked for anything.
void PackageTransaction::begin(const QString& path) {
  path_ = path;
  bus_.connect(packageKit, path, transaction, QString(), this, SLOT(told(QDBusMessage)));
  bus_.connect(packageKit, path, properties, QStringLiteral("PropertiesChanged"), this,
               SLOT(propertiesChanged(QDBusMessage)));
  const bool mayAsk = work_.password == Password::mayBeAsked;
  call(QStringLiteral("SetHints"),
       {QStringList{QStringLiteral("locale=C.UTF-8"),
                    QStringLiteral("interactive=%1").arg(QVariant(mayAsk).toString()),
                    QStringLiteral("background=%1").arg(QVariant(!mayAsk).toString())}});
  call(work_.method, work_.arguments);
}

// An answer means that it has begun; what comes of it is told by signals.
void PackageTransaction::call(const QString& method, const QVariantList& arguments) {
  auto message = QDBusMessage::createMethodCall(packageKit, path_, transaction, method);
  message.setArguments(arguments);
  auto* const asked =
      new QDBusPendingCallWatcher(bus_.asyncCall(message, std::numeric_limits<int>::max()), this);
  connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked] {
    asked->deleteLater();
    if (!asked->isError()) return;
    const bool isRefused = asked->error().name().endsWith(QLatin1String(".RefusedByPolicy"));
    end(failure(isRefused ? ErrorKind::refused : ErrorKind::io,
                shortened(asked->error().message())));
  });
}

void PackageTransaction::told(const QDBusMessage& message) {
  if (isOver_) return;
  silence_.start();
  const QVariantList told = message.arguments();
  const QString what = message.member();
  if (what == QLatin1String("Package") && told.size() > 1) {
    emit package(told.at(0).toUInt(), told.at(1).toString());
  } else if (what == QLatin1String("UpdateDetail") && told.size() > 8) {
    emit detail(told.at(7).toString(), told.at(8).toString());
  } else if (what == QLatin1String("ErrorCode") && told.size() > 1) {
    const bool isRefused = told.at(0).toUInt() == errorNotAuthorized;
    error_ = {isRefused ? ErrorKind::refused : ErrorKind::io, shortened(told.at(1).toString())};
  } else if (what == QLatin1String("Finished") && !told.isEmpty()) {
    finish(told.at(0).toUInt());
  }
}

void PackageTransaction::propertiesChanged(const QDBusMessage& message) {
  if (isOver_) return;
  silence_.start();
  const auto changed = qdbus_cast<QVariantMap>(message.arguments().value(1));
  const QVariant percentage = changed.value(QStringLiteral("Percentage"));
  if (percentage.isValid() && percentage.toUInt() <= mostPercent) emit progress(percentage.toInt());
}

void PackageTransaction::finish(uint exit) {
  if (exit == exitSuccess) return end({});
  const bool isTold = !error_.message.isEmpty();
  end(tl::unexpected(
      isTold ? error_
             : Error{ErrorKind::io, QStringLiteral("The system's package service failed")}));
}

void PackageTransaction::cancel() {
  if (!path_.isEmpty()) call(QStringLiteral("Cancel"), {});
  end(failure(ErrorKind::io, QStringLiteral("Cancelled")));
}

void PackageTransaction::end(const Result<void>& result) {
  if (std::exchange(isOver_, true)) return;
  silence_.stop();
  work_.ended(result);
}

}  // namespace tarnloft
