#include "platform/desktop/system/IniPreferences.h"
#include "testing/Cases.h"
#include "testing/FakeUpdater.h"
#include "testing/TestServices.h"
#include "updates/ChangeText.h"
#include "updates/UpdaterViewModel.h"

using namespace tarnloft;
using namespace std::chrono_literals;
using State = UpdaterViewModel::State;
using News = UpdaterViewModel::News;

namespace {

const SystemUpdater::Update newer{"0.2", "text", "tarnloft;0.2;amd64;source"};

struct Updates {
  TestServices disk;
  IniPreferences preferences{disk.path("tarnloft.ini"), disk.log};
  FakeUpdater updater;
  UpdaterViewModel model{updater, preferences, [this] { return disk.now; }};

  Updates() { model.start(); }
  void find(const std::optional<SystemUpdater::Update>& update) {
    std::exchange(updater.found, nullptr)(update);
  }
  void end(const Result<void>& result = {}) { updater.ended(result); }
  void lookAndFind(const std::optional<SystemUpdater::Update>& update) {
    model.checkIfDue();
    find(update);
  }
};

const auto lacksPassword = failure(ErrorKind::refused, "Not authorized");
const auto broken = failure(ErrorKind::io, "No network");

}  // namespace

class TestUpdates : public QObject {
  Q_OBJECT

 private slots:
  void looksOnceADayIfThatIsWanted() {
    const auto after = [](std::chrono::seconds passed) {
      return [passed](Updates& it) {
        it.lookAndFind({});
        it.disk.now += passed;
      };
    };
    const Cases<std::function<void(Updates&)>, bool> cases{
        {"never before", [](Updates&) {}, true},
        {"just before", after(0s), false},
        {"nearly a day before", after(24h - 1s), false},
        {"a day before", after(24h), true},
        {"the clock was set back", after(-1h), true},
        {"in vain",
         [](Updates& it) {
           it.model.checkIfDue();
           it.updater.found(broken);
         },
         true},
        {"still at it", [](Updates& it) { it.model.checkIfDue(); }, false},
        {"not wanted", [](Updates& it) { it.model.setChecksForUpdates(false); }, false}};
    cases.check([](const auto& before, bool looks) {
      Updates updates;
      before(updates);
      updates.updater.asked.clear();
      updates.model.checkIfDue();
      QCOMPARE(updates.updater.asked, looks ? QStringList("clock checks") : QStringList());
    });
  }

  void isSilentWithoutAnUpdater() {
    Updates updates;
    FakeUpdater none;
    none.isThere = false;
    UpdaterViewModel model(none, updates.preferences, [&] { return updates.disk.now; });
    model.start();
    model.checkIfDue();
    model.checkForUpdates();
    QVERIFY(!model.isThere() && !model.canCheckForUpdates() && none.asked.isEmpty());
  }

  void whatAUserAskedForIsToldWhereTheyAsked() {
    Updates updates;
    updates.model.setDownloadsUpdates(true);
    updates.model.checkForUpdates();
    QVERIFY(!updates.model.canCheckForUpdates());
    updates.find(newer);
    QCOMPARE(updates.model.status(), "Tarn Loft 0.2 is available.");
    QCOMPARE(updates.model.news(), News::none);
    updates.model.install();
    updates.updater.progress(40);
    QCOMPARE(updates.model.percent(), 40);
    updates.end();
    QCOMPARE(updates.updater.asked, QStringList({"user checks", "user installs 0.2"}));
    QCOMPARE(updates.model.news(), News::installed);
    QCOMPARE(updates.model.state(), State::Installed);
  }

  void aVersionIsOfferedUntilItIsPutOff() {
    Updates updates;
    for (const auto& [version, news] :
         {std::pair("0.2", News::available), {"0.2", News::none}, {"0.3", News::available}}) {
      updates.lookAndFind(SystemUpdater::Update{version, {}, {}});
      QCOMPARE(updates.model.news(), news);
      updates.model.dismissNews();
      updates.disk.now += 48h;
    }
  }

  void installsAloneIfThatIsWanted() {
    // of the download and of the installation; none where it doesn't come to that
    using Ended = std::optional<Result<void>>;
    const Ended good = Result<void>(), none;
    const Cases<Ended, Ended, State, News, QString> cases{
        {"as it should", good, good, State::Installed, News::installed, ""},
        {"a password is wanted", good, lacksPassword, State::Available, News::available, ""},
        {"even for the download", lacksPassword, none, State::Available, News::available, ""},
        {"no network", broken, none, State::Available, News::none,
         "The update couldn't be downloaded: No network"},
        {"damaged", good, broken, State::Available, News::none,
         "The update couldn't be installed: No network"}};
    cases.check([](const Ended& downloaded, const Ended& installed, State state, News news,
                   const QString& problem) {
      Updates updates;
      updates.model.setDownloadsUpdates(true);
      updates.lookAndFind(newer);
      QStringList asked{"clock checks", "clock downloads 0.2"};
      updates.end(*downloaded);
      if (installed) {
        asked << "clock installs 0.2";
        updates.end(*installed);
      }
      QCOMPARE(updates.updater.asked, asked);
      QCOMPARE(updates.model.state(), state);
      QCOMPARE(updates.model.news(), news);
      QCOMPARE(updates.model.problem(), problem);
    });
  }

  void aFailureIsToldAndACancelledOneIsNot() {
    Updates updates;
    updates.model.checkForUpdates();
    std::exchange(updates.updater.found, nullptr)(broken);
    QCOMPARE(updates.model.problem(), "Updates couldn't be looked for: No network");
    updates.model.checkForUpdates();
    QCOMPARE(updates.model.problem(), QString());
    updates.model.cancel();
    QCOMPARE(updates.model.problem(), QString());
    QCOMPARE(updates.model.state(), State::Idle);
    updates.model.checkForUpdates();
    updates.find(newer);
    updates.model.install();
    updates.end(lacksPassword);
    QCOMPARE(updates.model.problem(), "The update couldn't be installed: Not authorized");
    QVERIFY(updates.model.canCheckForUpdates());
  }

  void whatOthersHaveInstalledWaitsForANewStart() {
    Updates updates;
    updates.updater.isOther = true;
    updates.lookAndFind({});
    QCOMPARE(updates.model.news(), News::installed);
    updates.disk.now += 48h;
    updates.model.checkIfDue();
    QCOMPARE(updates.updater.asked.size(), 1);
  }

  void aReplacedProgramIsToldOfAtOnce() {
    const Cases<std::function<void(Updates&)>, News> cases{
        {"at rest", [](Updates&) {}, News::installed},
        {"an update is known", [](Updates& it) { it.lookAndFind(newer); }, News::installed},
        {"looking for one", [](Updates& it) { it.model.checkForUpdates(); }, News::none},
        {"what was looked for can't be had",
         [](Updates& it) {
           it.model.checkForUpdates();
           it.updater.isOther = true;
           it.updater.found(broken);
         },
         News::installed}};
    cases.check([](const auto& before, News news) {
      Updates updates;
      before(updates);
      updates.updater.replaced();
      QCOMPARE(updates.model.news(), news);
    });
  }

  void changesReadAsLists() {
    const Cases<QString, QString> cases{
        {"two versions",
         "tarnloft (0.3) unstable; urgency=medium\n\n  * One that\n    goes on.\n  * Two\n\n"
         " -- Them <a@b.c>  Mon, 01 Jan 2026 00:00:00 +0000\n\n"
         "tarnloft (0.2~1) stable; urgency=low\n\n  * Three\n\n -- Them <a@b.c>  x\n",
         "0.3\n• One that goes on.\n• Two\n\n0.2~1\n• Three"},
        {"another form", "Faster.\n\nSafer.\n", "Faster.\n\nSafer."},
        {"none", "", ""}};
    cases.check([](const QString& changelog, const QString& text) {
      QCOMPARE(readableChanges(changelog), text);
    });
  }
};

QTEST_GUILESS_MAIN(TestUpdates)
#include "tst_updates.moc"
