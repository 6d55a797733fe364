#include "platform/desktop/updates/PackageKitUpdater.h"

#include "platform/desktop/system/ProgramFile.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QTimer>

#include <memory>
#include <utility>

namespace tarnloft {
namespace {

// The service's own numbers.
constexpr uint infoBlocked = 9;
constexpr quint64 anyPackage = 0;
constexpr quint64 onlyTrusted = 1 << 1;
constexpr quint64 onlyDownload = 1 << 3;

// All of a package's files stand by then.
constexpr auto settling = std::chrono::seconds(5);

QString partOf(const QString& id, int part) { return id.section(QLatin1Char(';'), part, part); }

}  // namespace

PackageKitUpdater::PackageKitUpdater(std::function<QDBusConnection()> bus, QString package,
                                     std::chrono::milliseconds patience)
    : bus_(std::move(bus)), package_(std::move(package)), patience_(patience) {}

PackageKitUpdater::~PackageKitUpdater() = default;

// Asked of the bus alone, which starts no service for it.
void PackageKitUpdater::look(std::function<void()> isThere) {
  if (package_.isEmpty()) return;
  const auto once = [this, isThere = std::move(isThere)] {
    if (!std::exchange(isFound_, true)) isThere();
  };
  askBus(QStringLiteral("ListNames"), once);
  askBus(QStringLiteral("ListActivatableNames"), once);
}

void PackageKitUpdater::askBus(const QString& method, const std::function<void()>& isThere) {
  const auto message = QDBusMessage::createMethodCall(
      QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
      QStringLiteral("org.freedesktop.DBus"), method);
  auto* const asked = new QDBusPendingCallWatcher(bus_().asyncCall(message), this);
  connect(asked, &QDBusPendingCallWatcher::finished, this, [asked, isThere] {
    asked->deleteLater();
    const QDBusPendingReply<QStringList> reply = *asked;
    if (!reply.isError() && reply.value().contains(PackageTransaction::service())) isThere();
  });
}

// The end may begin the next piece of work, so it runs when this one is out of the way.
PackageTransaction& PackageKitUpdater::begin(const QString& method, const QVariantList& arguments,
                                             Asker asker, Ended ended) {
  using Password = PackageTransaction::Password;
  const auto password = asker == Asker::user ? Password::mayBeAsked : Password::isNotAsked;
  const auto end = [this, ended = std::move(ended)](const Result<void>& result) {
    transaction_.release()->deleteLater();
    ended(result);
  };
  transaction_ = std::make_unique<PackageTransaction>(
      bus_(), PackageTransaction::Work{method, arguments, password, end}, patience_);
  return *transaction_;
}

void PackageKitUpdater::check(Asker asker, Found found) {
  begin(QStringLiteral("RefreshCache"), {false}, asker,
        [this, asker, found = std::move(found)](const Result<void>& refreshed) {
          findUpdate(asker, refreshed, found);
        });
}

// A source that can't be read keeps nothing back that another one has; but then nobody can say that
// there is nothing.
void PackageKitUpdater::findUpdate(Asker asker, const Result<void>& refreshed, Found found) {
  const auto id = std::make_shared<QString>();
  const auto& transaction =
      begin(QStringLiteral("GetUpdates"), {anyPackage}, asker,
            [this, id, refreshed, found = std::move(found)](const Result<void>& listed) {
              if (!id->isEmpty()) return describe(*id, found);
              const bool mayHaveMissed = !refreshed && refreshed.error().kind != ErrorKind::refused;
              if (mayHaveMissed) return found(tl::unexpected(refreshed.error()));
              if (!listed) return found(tl::unexpected(listed.error()));
              found(std::nullopt);
            });
  connect(&transaction, &PackageTransaction::package, this,
          [this, id](uint info, const QString& each) {
            if (partOf(each, 0) == package_ && info != infoBlocked) *id = each;
          });
}

void PackageKitUpdater::describe(const QString& id, Found found) {
  const auto update = std::make_shared<Update>(Update{partOf(id, 1), {}, id});
  const auto& transaction =
      begin(QStringLiteral("GetUpdateDetail"), {QStringList{id}}, Asker::clock,
            [update, found = std::move(found)](const Result<void>&) { found(*update); });
  connect(&transaction, &PackageTransaction::detail, this,
          [update](const QString& text, const QString& changelog) {
            update->changes = changelog.isEmpty() ? text : changelog;
          });
}

void PackageKitUpdater::update(quint64 flags, const Update& update, Asker asker, Progress progress,
                               Ended ended) {
  const auto& transaction = begin(QStringLiteral("UpdatePackages"), {flags, QStringList{update.id}},
                                  asker, std::move(ended));
  connect(&transaction, &PackageTransaction::progress, this, std::move(progress));
}

void PackageKitUpdater::download(const Update& wanted, Progress progress, Ended ended) {
  update(onlyTrusted | onlyDownload, wanted, Asker::clock, std::move(progress), std::move(ended));
}

void PackageKitUpdater::install(const Update& wanted, Asker asker, Progress progress, Ended ended) {
  update(onlyTrusted, wanted, asker, std::move(progress), std::move(ended));
}

void PackageKitUpdater::cancel() {
  if (transaction_) transaction_->cancel();
}

bool PackageKitUpdater::isReplaced() const { return isProgramReplaced(); }

void PackageKitUpdater::watch(std::function<void()> replaced) {
  auto* const settled = new QTimer(this);
  settled->setSingleShot(true);
  connect(settled, &QTimer::timeout, this, [replaced = std::move(replaced), settled] {
    if (!isProgramReplaced()) return;
    settled->deleteLater();
    replaced();
  });
  connect(&program_, &QFileSystemWatcher::fileChanged, settled,
          [settled] { settled->start(settling); });
  program_.addPath(programFile());
}

}  // namespace tarnloft
