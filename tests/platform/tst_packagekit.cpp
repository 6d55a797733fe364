#include "platform/desktop/updates/PackageKitUpdater.h"
#include "testing/BusService.h"
#include "testing/Cases.h"

#include <QDBusObjectPath>
#include <QStringList>
#include <QTest>

using namespace tarnloft;
using namespace std::chrono_literals;

namespace {

const QString packageKit = "org.freedesktop.PackageKit";
const QString updateID = "tarnloft;0.2;amd64;source";
const QDBusObjectPath transaction("/1");
constexpr uint normal = 5, blocked = 9, percentUnknown = 101;

using Told = std::pair<QString, QVariantList>;  // a signal of a transaction

const Told finished{"Finished", {1u, 0u}};
const Told failed{"Finished", {2u, 0u}};
Told named(const QString& id, uint info = normal) { return {"Package", {info, id, "a summary"}}; }
Told error(uint code) { return {"ErrorCode", {code, "The\nreason"}}; }
Told percentage(uint percent) { return {"Percentage", {percent}}; }
Told detail() {
  const QStringList none;
  return {"UpdateDetail",
          {updateID, none, none, none, none, none, 0u, "text", "changelog", 0u, "", ""}};
}

// The service with one transaction, in which it tells what the test wants for each method.
struct Service {
  QMap<QString, QList<Told>> answers{{"RefreshCache", {finished}},
                                     {"GetUpdates", {finished}},
                                     {"GetUpdateDetail", {detail(), finished}},
                                     {"UpdatePackages", {finished}}};
  QString refused;  // a method that the policy forbids
  QStringList calls;
  BusService bus{packageKit, [this](const QDBusMessage& call) { return answer(call); }};

  QDBusMessage answer(const QDBusMessage& call) {
    const QString method = call.member();
    const QVariantList arguments = call.arguments();
    if (method == "CreateTransaction") return call.createReply(QVariant::fromValue(transaction));
    if (method == "SetHints") {
      calls << arguments[0].toStringList().filter("interactive");
    } else if (method == "UpdatePackages") {
      calls << method + ' ' + arguments[0].toString() + ' ' + arguments[1].toStringList().join(' ');
    } else {
      calls << method;
    }
    if (method == refused)
      return call.createErrorReply(packageKit + ".Transaction.RefusedByPolicy", "no");
    for (const auto& [name, values] : answers.value(method)) tell(name, values);
    return call.createReply();
  }
  void tell(const QString& name, const QVariantList& values) const {
    if (name != "Percentage")
      return bus.tell(transaction.path(), packageKit + ".Transaction", name, values);
    bus.tell(transaction.path(), "org.freedesktop.DBus.Properties", "PropertiesChanged",
             {"", QVariantMap{{name, values.first()}}, QStringList()});
  }
};

std::string sayOf(const Result<std::optional<SystemUpdater::Update>>& found) {
  if (!found) {
    const bool isRefused = found.error().kind == ErrorKind::refused;
    return (isRefused ? "refused: " : "") + found.error().message.toStdString();
  }
  return *found ? ((*found)->version + ' ' + (*found)->changes).toStdString() : "none";
}

struct Asked {
  PackageKitUpdater updater;
  std::optional<std::string> end;
  QList<int> percents;

  explicit Asked(std::chrono::milliseconds patience = 1min)
      : updater(QDBusConnection::sessionBus, "tarnloft", patience) {}
  void check() {
    updater.check(SystemUpdater::Asker::user, [this](const auto& found) { end = sayOf(found); });
  }
  void install(SystemUpdater::Asker asker) {
    updater.install(
        {"0.2", {}, updateID}, asker, [this](int each) { percents << each; },
        [this](const Result<void>& result) {
          end = result ? "" : sayOf(tl::unexpected(result.error()));
        });
  }
};

}  // namespace

// The package service as the program sees it, played by the test.
class TestPackageKit : public QObject {
  Q_OBJECT

 private slots:
  void isThereForAPackageOnABusThatHasIt() {
    const Cases<QString, bool, bool> cases{{"as it should", "tarnloft", true, true},
                                           {"no package", "", true, false},
                                           {"no service", "tarnloft", false, false}};
    cases.check([](const QString& package, bool hasService, bool isThere) {
      std::optional<Service> service;
      if (hasService) service.emplace();
      PackageKitUpdater updater(QDBusConnection::sessionBus, package);
      int told = 0;
      updater.look([&] { ++told; });
      // Answers come in the order of questions, so by this one's the others are there.
      QVERIFY(QDBusConnection::sessionBus()
                  .call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/",
                                                       "org.freedesktop.DBus", "GetId"))
                  .type() == QDBusMessage::ReplyMessage);
      QTRY_COMPARE_WITH_TIMEOUT(told, isThere ? 1 : 0, 2000);
      QCoreApplication::processEvents();
      QCOMPARE(told, isThere ? 1 : 0);
    });
  }

  void findsWhatIsNewer() {
    using Answers = QMap<QString, QList<Told>>;
    const QList<Told> ours{named("tarn;9;amd64;s"), named(updateID), finished};
    const Cases<Answers, std::string> cases{
        {"ours among others", {{"GetUpdates", ours}}, "0.2 changelog"},
        {"others alone", {{"GetUpdates", {named("tarn;9;amd64;s"), finished}}}, "none"},
        {"held back", {{"GetUpdates", {named(updateID, blocked), finished}}}, "none"},
        {"nothing told of it",
         {{"GetUpdates", ours}, {"GetUpdateDetail", {error(1), failed}}},
         "0.2 "},
        {"one source is broken",
         {{"RefreshCache", {error(2), failed}}, {"GetUpdates", ours}},
         "0.2 changelog"},
        {"a source is broken, and nobody knows",
         {{"RefreshCache", {error(2), failed}}},
         "The reason"},
        {"reading takes a password", {{"RefreshCache", {error(48), failed}}}, "none"},
        {"no list", {{"GetUpdates", {error(2), failed}}}, "The reason"},
        {"no reason", {{"GetUpdates", {failed}}}, "The system's package service failed"}};
    cases.check([](const Answers& answers, const std::string& end) {
      Service service;
      for (const auto& [method, told] : answers.asKeyValueRange()) service.answers[method] = told;
      Asked asked;
      asked.check();
      QTRY_VERIFY(asked.end.has_value());
      QCOMPARE(*asked.end, end);
    });
  }

  void installsWhatTheSourcesVouchFor() {
    const Cases<SystemUpdater::Asker, QString> cases{
        {"a user", SystemUpdater::Asker::user, "interactive=true"},
        {"the clock", SystemUpdater::Asker::clock, "interactive=false"}};
    cases.check([](SystemUpdater::Asker asker, const QString& hint) {
      Service service;
      service.answers["UpdatePackages"] = {percentage(40), percentage(percentUnknown), finished};
      Asked asked;
      asked.install(asker);
      QTRY_VERIFY(asked.end.has_value());
      QCOMPARE(*asked.end, "");
      QCOMPARE(asked.percents, QList<int>{40});
      QCOMPARE(service.calls, QStringList({hint, "UpdatePackages 2 " + updateID}));
      service.refused = "UpdatePackages";
      asked.end.reset();
      asked.install(asker);
      QTRY_VERIFY(asked.end.has_value());
      QCOMPARE(*asked.end, "refused: no");
    });
  }

  void neverWaitsForEver() {
    const Cases<std::function<void(Asked&, Service&)>, std::string, bool> cases{
        {"silence", [](Asked&, Service&) {}, "The system's package service doesn't answer", true},
        {"cancelled", [](Asked& asked, Service&) { asked.updater.cancel(); }, "Cancelled", true},
        {"the service goes", [](Asked&, Service& service) { service.bus.leave(); },
         "The system's package service has stopped", false}};
    cases.check([](const auto& happens, const std::string& end, bool isCancelled) {
      Service service;
      service.answers["RefreshCache"].clear();
      service.answers["GetUpdates"] = {failed};
      Asked asked(end.ends_with("answer") ? 200ms : 1min);
      asked.check();
      QTRY_VERIFY(service.calls.contains("RefreshCache"));
      happens(asked, service);
      QTRY_VERIFY(asked.end.has_value());
      QCOMPARE(*asked.end, end);
      if (isCancelled) QTRY_VERIFY(service.calls.contains("Cancel"));
    });
  }
};

QTEST_GUILESS_MAIN(TestPackageKit)
#include "tst_packagekit.moc"
