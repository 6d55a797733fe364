#include "entry/application/AppDelegate.h"
#include "platform/desktop/system/IniPreferences.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

namespace {

class FakeTray : public StatusItem {
 public:
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
  bool isInTray() const override { return true; }
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
  void hidesInTheTrayAsWanted() {
    Running running;
    running.delegate.installMenuBar();
    running.delegate.installMenuBar();
    QCOMPARE(running.tray.installed, 1);
    running.delegate.lastWindowClosed();
    QCOMPARE(running.ended, 0);
    running.tray.clicked();
    running.tray.menu.front().run();
    QCOMPARE(running.opened, 2);
    running.prefs.setKeepRunning(false);
    QVERIFY(!MenuBarPrefs(running.preferences).keepRunning());
    running.delegate.lastWindowClosed();
    running.tray.menu.back().run();
    QCOMPARE(running.ended, 2);
  }
};

QTEST_MAIN(TestAppDelegate)
#include "tst_appdelegate.moc"
