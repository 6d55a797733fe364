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
  bool isThere = true;
  bool isInTray() const override { return isThere; }
};

class FakeTaskbar : public Taskbar {
 public:
  bool areShown = true;
  bool canHideWindows() const override { return true; }
  void setWindowsShown(bool shown) override { areShown = shown; }
};

struct Running {
  TestServices disk;
  IniPreferences preferences{disk.path("tarnloft.ini"), disk.log};
  MenuBarPrefs prefs{preferences, disk.log};
  FakeTray tray;
  FakeTaskbar taskbar;
  int opened = 0;
  int ended = 0;
  AppDelegate delegate{preferences,        prefs, tray, taskbar, [this] { ++opened; },
                       [this] { ++ended; }};
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
    QVERIFY(!MenuBarPrefs(running.preferences, running.disk.log).keepRunning());
    running.delegate.lastWindowClosed();
    running.tray.menu.back().run();
    QCOMPARE(running.ended, 2);
  }

  void leavesTheTaskbarOnlyForATray() {
    Running running;
    running.prefs.setShowDock(false);
    QVERIFY(!running.taskbar.areShown);
    running.prefs.setShowDock(true);
    QVERIFY(running.taskbar.areShown);
    running.tray.isThere = false;
    running.prefs.setShowDock(false);
    QVERIFY(running.taskbar.areShown);
  }

  void readsPreferencesOfAnyKind() {
    TestServices disk;
    IniPreferences stored(disk.path("tarnloft.ini"), disk.log);
    const auto read = [&] { return MenuBarPrefs(stored, disk.log); };
    QCOMPARE(read().hotKey(), (HotKey{49, 6144}));
    stored.setText("mb.showType", "true");
    stored.setText("mb.showColors", "perhaps");
    stored.setNumber("mb.hotKeyCode", 11);
    stored.setNumber("mb.hotKeyModifiers", 0);
    QVERIFY(read().showType() && read().showColors() && !read().showCode());
    QCOMPARE(read().hotKey(), (HotKey{11, 0}));
    stored.setNumber("mb.hotKeyCode", 3.5);
    stored.setText("mb.hotKeyModifiers", "many");
    QCOMPARE(read().hotKey(), HotKey());
    QVERIFY(disk.log.lines.isEmpty());
    for (const double odd : {-1.0, 4294967296.0}) {
      stored.setNumber("mb.hotKeyCode", odd);
      QCOMPARE(read().hotKey(), HotKey());
    }
    QCOMPARE(disk.log.lines.size(), 2);
  }
};

QTEST_MAIN(TestAppDelegate)
#include "tst_appdelegate.moc"
