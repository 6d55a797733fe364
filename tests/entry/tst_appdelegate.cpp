#include "entry/application/AppDelegate.h"
#include "platform/desktop/system/AutostartEntry.h"
#include "quickgrab/TestPanel.h"
#include "quickgrab/hotkey/HotKeyFormatter.h"
#include "testing/FakeTray.h"

#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

struct Running {
  TestPanel panel{{}};
  QQmlEngine engine;
  MenuBarPrefs& prefs = *panel.prefs;
  FakeTray tray;
  FakeTaskbar taskbar;
  FakeHotKey hotKey;
  int opened = 0;
  int ended = 0;
  AppDelegate delegate{
      panel.library.preferences,
      prefs,
      tray,
      taskbar,
      {.openMainWindow = [this] { ++opened; },
       .quit = [this] { ++ended; },
       .makeMenuBar =
           [this](std::function<void()> onOpenApp) {
             return std::make_unique<MenuBarController>(
                 tray, hotKey, prefs, panel.library.beep,
                 std::make_unique<QuickGrabPanel>([&]() -> QQmlEngine& { return engine; },
                                                  panel.grabServices(), [] { return true; }),
                 MenuBarActions{.onOpenApp = std::move(onOpenApp), .onQuit = [this] { ++ended; }});
           }}};
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
    running.tray.menu.front().run();
    QCOMPARE(running.opened, 1);
    running.prefs.setKeepRunning(false);
    QVERIFY(!MenuBarPrefs(running.panel.library.preferences, running.panel.library.disk.log)
                 .keepRunning());
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
    running.tray.isThere = true;
    running.tray.changed();
    QVERIFY(!running.taskbar.areShown);
  }

  // What the settings' row shows and takes, by the numbers of a keyboard of the United States.
  void recordsAKey() {
    Running running;
    running.delegate.installMenuBar();
    HotKeySettings& settings = running.delegate.menuBar()->hotKeySettings();
    QCOMPARE(settings.shortcut(), "Ctrl+Alt+Space");
    QVERIFY(settings.problem().isEmpty());
    struct Press {
      const char* name;
      quint32 keysym, scanCode;
      Qt::KeyboardModifiers modifiers;
      HotKey then;
      bool goesOn;
    };
    const HotKey first;
    for (const Press& press : std::initializer_list<Press>{
             {"no modifier", 'q', 24, Qt::KeypadModifier, first, true},
             {"no name", 0xffe5, 0, Qt::ControlModifier, first, true},
             {"Esc", 0xff1b, 9, Qt::MetaModifier, first, false},
             {"a letter", 'Q', 24, Qt::ShiftModifier, {12, 0x200}, false},
             {"by place", '!', 10, Qt::ShiftModifier | Qt::AltModifier, {18, 0xa00}, false},
             {"another script", 0x6c6, 38, Qt::ControlModifier, {0, 0x1000}, false}}) {
      settings.setRecording(true);
      QCOMPARE(running.hotKey.asked.last(), (HotKey{0, 0}));
      settings.take(press.keysym, press.scanCode, press.modifiers);
      QVERIFY2(settings.isRecording() == press.goesOn, press.name);
      QVERIFY2(running.prefs.hotKey() == press.then, press.name);
      settings.setRecording(false);
      QCOMPARE(running.hotKey.asked.last(), press.then);
    }
    QCOMPARE(running.panel.library.beep.count, 2);
    QCOMPARE(HotKeyFormatter::modifierString(0x1b00) + HotKeyFormatter::keyName(65),
             QString("⌃⌥⇧⌘Key 65"));
    running.hotKey.now = GlobalHotKey::State::taken;
    const QSignalSpy told(&settings, &HotKeySettings::changed);
    running.hotKey.changed();
    QCOMPARE(told.size(), 1);
    QVERIFY(settings.problem().contains("another program"));
  }

  void isStartedByTheSession() {
    TestServices disk;
    AutostartEntry entry(disk.path("autostart"), "/opt/a \"b\"/tarnloft");
    const QString file = disk.path("autostart/tarnloft.desktop");
    QVERIFY(!entry.isOn() && entry.setOn(true) && entry.isOn());
    QVERIFY(contentOf(file).contains("\"/opt/a \\\\\"b\\\\\"/tarnloft\"\n"));
    QVERIFY(writeFile(file, contentOf(file) + "Hidden=true\n") && !entry.isOn());
    QVERIFY(entry.setOn(false) && !QFile::exists(file) && entry.setOn(false));
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
