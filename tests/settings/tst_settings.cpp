#include "controls/theme/Typography.h"
#include "settings/SettingsWindow.h"
#include "testing/Cases.h"
#include "testing/FakeTray.h"
#include "testing/FakeUpdater.h"
#include "testing/TestLibrary.h"

#include <QAccessible>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_QuickGrabPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SettingsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_UpdatesPlugin)

using namespace tarnloft;

namespace {

struct FakeLogin : LoginItem {
  bool isThere = false;
  bool isOn() const override { return isThere; }
  Result<void> setOn(bool on) override {
    isThere = on;
    return {};
  }
};

// The settings window over a library, used by keys, and read as assistive technology does.
struct Settings {
  TestLibrary library;
  MenuBarPrefs menuBar{library.preferences, library.disk.log};
  FakeTray tray;
  FakeTaskbar taskbar;
  FakeLogin login;
  FakeHotKey hotKey;
  HotKeySettings hotKeySettings{menuBar, hotKey, library.beep};
  FakeUpdater updater;
  UpdaterViewModel updates{updater, library.preferences, [this] { return library.disk.now; }};
  QQmlEngine engine;
  std::unique_ptr<SettingsWindow> settings;

  // Made ahead and then shown, behind what happens between the two.
  explicit Settings(const std::function<void(Settings&)>& meanwhile = [](Settings&) {}) {
    QTest::failOnWarning(QRegularExpression("qrc:|QML|Binding"));
    QAccessible::setActive(true);
    prepareTypography();
    library.add("Acme");
    settings = std::make_unique<SettingsWindow>(
        engine, SettingsServices{library.start(), menuBar, library.dialogs, library.viewer, tray,
                                 taskbar, login, updates, [this] { return &hotKeySettings; }});
    settings->prepare();
    QTRY_COMPARE(QGuiApplication::allWindows().size(), 1);
    meanwhile(*this);
    settings->open(nullptr);
    QCOMPARE(QGuiApplication::allWindows().size(), 1);
    QVERIFY(QTest::qWaitForWindowActive(&window()));
  }
  QQuickWindow& window() const { return *settings->window(); }
  LibraryPreferences& preferences() { return library.store->preferences(); }
  void press(Qt::Key key) const { QTest::keyClick(&window(), key); }

  // The visible control of that name, behind which its value may stand; null for none.
  QQuickItem* item(const QString& name, QQuickItem* within = nullptr) const {
    QQuickItem* const top = within ? within : window().contentItem();
    for (QQuickItem* const child : top->childItems()) {
      if (!child->isVisible()) continue;
      QAccessibleInterface* const known = QAccessible::queryAccessibleInterface(child);
      const QString told = known ? known->text(QAccessible::Name) : QString();
      const bool isNamed = told == name || told.startsWith(name + ", ");
      if (isNamed && child->activeFocusOnTab()) return child;
      if (QQuickItem* const found = item(name, child)) return found;
    }
    return nullptr;
  }
  // All that is told.
  QStringList texts(QQuickItem* within = nullptr) const {
    QStringList all;
    for (QQuickItem* const child : (within ? within : window().contentItem())->childItems()) {
      if (!child->isVisible()) continue;
      if (auto* const known = QAccessible::queryAccessibleInterface(child))
        all << known->text(QAccessible::Name);
      all << texts(child);
    }
    return all;
  }
  bool isChecked(const char* name) const {
    return QAccessible::queryAccessibleInterface(item(name))->state().checked;
  }
  // By the keyboard alone.
  void use(const QString& name, const QList<Qt::Key>& keys) const {
    for (int tabs = 0; tabs < 40 && !item(name)->hasActiveFocus(); ++tabs) press(Qt::Key_Tab);
    QVERIFY2(item(name)->hasActiveFocus(), qPrintable(name));
    for (const Qt::Key key : keys) {
      press(key);
      QTest::qWait(1);
    }
  }
};

}  // namespace

class TestSettings : public QObject {
  Q_OBJECT

 private slots:
  void switchesWorkBothWays() {
    using Get = bool (MenuBarPrefs::*)() const;
    using Set = void (MenuBarPrefs::*)(bool);
    const Cases<Get, Set> cases{
        {"Keep running in the tray", &MenuBarPrefs::keepRunning, &MenuBarPrefs::setKeepRunning},
        {"Show in taskbar", &MenuBarPrefs::showDock, &MenuBarPrefs::setShowDock},
        {"Colors", &MenuBarPrefs::showColors, &MenuBarPrefs::setShowColors},
        {"Logos & images", &MenuBarPrefs::showLogos, &MenuBarPrefs::setShowLogos},
        {"Type", &MenuBarPrefs::showType, &MenuBarPrefs::setShowType},
        {"Gradients", &MenuBarPrefs::showGradients, &MenuBarPrefs::setShowGradients},
        {"Code", &MenuBarPrefs::showCode, &MenuBarPrefs::setShowCode}};
    Settings settings;
    MenuBarPrefs& prefs = settings.menuBar;
    cases.check([&](const char* name, Get get, Set set) {
      const bool before = (prefs.*get)();
      QCOMPARE(settings.isChecked(name), before);
      settings.use(name, {Qt::Key_Space});
      QCOMPARE((prefs.*get)(), !before);
      (prefs.*set)(before);
      QCOMPARE(settings.isChecked(name), before);
    });
  }

  void choicesWorkBothWays() {
    Settings settings;
    LibraryPreferences& preferences = settings.preferences();
    const Cases<std::function<int()>, std::function<void()>, QString, QString> cases{
        {"Click a color to copy", [&] { return int(preferences.colorCopyFormat()); },
         [&] { preferences.setColorCopyFormat(ColorCopyFormat::cmyk); }, "HEX (lowercase)", "CMYK"},
        {"Asset view", [&] { return int(preferences.assetDisplayMode()); },
         [&] { preferences.setAssetDisplayMode(AssetDisplayMode::compact); }, "Expanded",
         "Compact"},
        {"Theme", [&] { return int(preferences.appearanceMode()); },
         [&] { preferences.setAppearanceMode(AppearanceMode::dark); }, "Light", "Dark"}};
    cases.check([&](const char* name, const auto& get, const auto& set, const QString& second,
                    const QString& other) {
      settings.use(name, {Qt::Key_Space, Qt::Key_Down, Qt::Key_Return});
      QTRY_COMPARE(get(), 1);
      QVERIFY(settings.texts().contains(QString(name) + ", " + second));
      set();
      QVERIFY(settings.texts().contains(QString(name) + ", " + other));
    });
    preferences.setDefaultAccentHex("#112233");
    QVERIFY(settings.texts().contains("Default accent color, #112233"));
    settings.use("Default accent color", {Qt::Key_Return, Qt::Key_Right});
    QTRY_VERIFY(preferences.defaultAccentHex() != "#112233");
  }

  void aPressElsewhereEndsTheRecording() {
    Settings settings;
    const QString recording("Quick grab shortcut, Type a shortcut…");
    settings.use("Quick grab shortcut", {Qt::Key_Space});
    QVERIFY(settings.texts().contains(recording));
    QTest::mouseClick(&settings.window(), Qt::LeftButton, {}, {4, 4});
    QVERIFY(!settings.texts().contains(recording));
  }

  void aFolderIsChosenOrRefused() {
    Settings settings;
    TestLibrary& library = settings.library;
    const QString home = library.folder;
    QVERIFY(writeFile(library.disk.path("file"), "x"));
    const auto choose = [&](const QString& path) {
      library.dialogs.answer = path.isEmpty() ? std::nullopt : std::optional(path);
      settings.use("Choose Folder…", {Qt::Key_Space});
    };
    const QString refusal = "“" + library.disk.path("file") + "” isn't a folder.";
    choose(library.disk.path("file"));
    QCOMPARE(library.dialogs.folderFrom, home);
    QTRY_VERIFY(settings.texts().contains(refusal));
    QVERIFY(settings.texts().contains("Location, " + home));
    choose({});  // cancelled
    QVERIFY(settings.texts().contains(refusal));
    QVERIFY(QDir().mkpath(library.disk.path("there")));
    choose(library.disk.path("there"));
    QVERIFY(settings.texts().contains("Location, " + library.disk.path("there")));
    QTRY_VERIFY(!settings.texts().contains(refusal));
    settings.use("Show in File Manager", {Qt::Key_Space});
    QCOMPARE(library.viewer.revealed, QStringList(library.disk.path("there")));
    // One that goes while the window shows it is told, and found again.
    library.store->createBrand("New");
    QVERIFY(QDir().rename(library.disk.path("there"), library.disk.path("gone")));
    library.store->scan();
    const QString problem = "“" + library.disk.path("there") + "” isn't there just now.";
    QTRY_VERIFY(settings.texts().contains(problem));
    QVERIFY(QDir().rename(library.disk.path("gone"), library.disk.path("there")));
    settings.use("Try Again", {Qt::Key_Space});
    QTRY_VERIFY(!settings.texts().contains(problem));
  }

  void updatesAreAskedForAndInstalled() {
    Settings settings;
    FakeUpdater& updater = settings.updater;
    QVERIFY(!settings.texts().contains("Software Update"));
    settings.updates.start();
    const auto find = [&](const Result<std::optional<SystemUpdater::Update>>& found) {
      settings.use("Check for Updates Now…", {Qt::Key_Space});
      QTRY_VERIFY(settings.texts().contains("Looking for updates…"));
      std::exchange(updater.found, nullptr)(found);
    };
    find(failure(ErrorKind::io, "no network"));
    QTRY_VERIFY(settings.texts().contains("Updates couldn't be looked for: no network"));
    find(std::nullopt);
    QVERIFY(settings.texts().contains("Tarn Loft is up to date."));
    find(SystemUpdater::Update{"0.2", "Faster.", {}});
    QVERIFY(settings.texts().contains("Faster."));
    settings.use("Install", {Qt::Key_Space});
    updater.progress(40);
    QVERIFY(settings.texts().contains("40 %"));
    updater.ended({});
    QSignalSpy relaunches(&settings.updates, &UpdaterViewModel::relaunchRequested);
    settings.use("Relaunch", {Qt::Key_Space});
    QCOMPARE(relaunches.size(), 1);
    // The second switch keeps its value while the first one has the say.
    settings.use("Download and install updates automatically", {Qt::Key_Space});
    settings.use("Check for updates automatically", {Qt::Key_Space});
    QVERIFY(!settings.updates.checksForUpdates() && settings.updates.downloadsUpdates());
    QVERIFY(!settings.item("Download and install updates automatically"));
    QVERIFY(settings.texts().filter("only asks you to relaunch").size() == 1);
  }

  void opensOnceAndTellsWhatTheDesktopLacks() {
    Settings settings([](Settings& made) {
      made.tray.isThere = false;
      made.login.isThere = true;
    });
    QVERIFY(!settings.item("Keep running in the tray"));  // Tab doesn't lead there
    QVERIFY(!settings.item("Show in taskbar"));
    QVERIFY(settings.texts().filter("has no tray").size() == 1);
    settings.tray.isThere = true;
    QTRY_VERIFY(settings.item("Keep running in the tray"));
    QVERIFY(settings.isChecked("Start at login"));
    const QQuickWindow* const first = &settings.window();
    settings.settings->open(nullptr);
    QCOMPARE(&settings.window(), first);
    QSignalSpy closed(settings.settings.get(), &SettingsWindow::closed);
    settings.press(Qt::Key_Escape);
    QTRY_COMPARE(closed.size(), 1);
    QVERIFY(!settings.settings->window());
    settings.settings->open(nullptr);
    QVERIFY(settings.item("Show in taskbar"));
  }
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
