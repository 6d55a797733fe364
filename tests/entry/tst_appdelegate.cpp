#include "entry/application/AppDelegate.h"
#include "platform/desktop/system/IniPreferences.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QPointer>
#include <QTest>

using namespace tarnloft;

namespace {

class FakeTray : public StatusItem {
 public:
  bool present = true;
  int installed = 0;
  std::function<void()> clicked;
  std::vector<Command> menu;

  void install(const QIcon& icon, const QString& /*toolTip*/, std::function<void()> onClick,
               std::vector<Command> commands) override {
    QVERIFY(!icon.isNull());
    ++installed;
    clicked = std::move(onClick);
    menu = std::move(commands);
  }
  bool isInTray() const override { return present; }
};

struct Running {
  TestServices disk;
  IniPreferences preferences{disk.path("tarnloft.ini")};
  MenuBarPrefs prefs{preferences};
  FakeTray tray;
  int opened = 0;
  int ended = 0;
  AppDelegate delegate{preferences, prefs, tray, [this] { ++opened; }, [this] { ++ended; }};
};

}  // namespace

class TestAppDelegate : public QObject {
  Q_OBJECT

 private slots:
  void neverHidesWithoutAWayBack() {
    const Cases<bool, bool, int> cases{{"wanted, tray", true, true, 0},
                                       {"wanted, none", true, false, 1},
                                       {"not wanted, tray", false, true, 1},
                                       {"not wanted, none", false, false, 1}};
    cases.check([&](bool keepRunning, bool tray, int ended) {
      Running running;
      QVERIFY(running.prefs.keepRunning());
      running.prefs.setKeepRunning(keepRunning);
      QCOMPARE(MenuBarPrefs(running.preferences).keepRunning(), keepRunning);
      running.tray.present = tray;
      running.delegate.lastWindowClosed();
      QCOMPARE(running.ended, ended);
    });
  }

  void comesBackWhenTheTrayGoes() {
    Running running;
    running.delegate.lastWindowClosed();
    running.tray.present = false;
    QTRY_COMPARE_WITH_TIMEOUT(running.opened, 1, 20'000);
    QCOMPARE(running.ended, 0);
  }

  void opensAndRaisesTheMainWindow() {
    Running running;
    running.delegate.showMainWindow();
    QCOMPARE(running.opened, 1);

    auto window = std::make_unique<QWindow>();
    running.delegate.setMainWindow(window.get());
    window->showMinimized();
    running.delegate.applicationShouldHandleReopen();
    QCOMPARE(running.opened, 1);
    QVERIFY(window->isVisible() && !(window->windowStates() & Qt::WindowMinimized));

    window.reset();
    running.delegate.showMainWindow();
    QCOMPARE(running.opened, 2);
  }

  void installsOneIcon() {
    Running running;
    running.delegate.installMenuBar();
    running.delegate.installMenuBar();
    QCOMPARE(running.tray.installed, 1);
    running.tray.clicked();
    running.tray.menu.front().run();
    QCOMPARE(running.opened, 2);
    running.tray.menu.back().run();
    QCOMPARE(running.ended, 1);
  }
};

QTEST_MAIN(TestAppDelegate)
#include "tst_appdelegate.moc"
