// What a tile opens, and what is done in it, in the main window: menus and sheets beside the
// toolkit's own with three entries or fields; the settings beside the smallest window with one
// control; edits in a brand of 10,000 tiles beside one of 20.
#include "Measure.h"
#include "Ratio.h"
#include "controls/motion/Motion.h"
#include "settings/SettingsWindow.h"
#include "sheets/editors/ItemEditorSheet.h"
#include "shell/TestViews.h"
#include "testing/FakeUpdater.h"
#include "workspace/Items.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QSignalSpy>

#include <cstdio>

Q_IMPORT_QML_PLUGIN(TarnLoft_QuickGrabPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_SettingsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_UpdatesPlugin)

using namespace tarnloft;

namespace {

constexpr int rounds = 15;

// The window with a brand of so many tiles: colours, then one of each kind that has a sheet.
struct Bench : Views {
  Item color = colorItem("Color");
  Item gradient = Item::create(GradientPayload{
      {{{QUuid::createUuid(), "#000000", 0}, {QUuid::createUuid(), "#FFFFFF", 1}}, 45, {}}});
  Item code = Item::create(CodePayload{{"swift", "// Snippet", {}}});
  Item logo =
      Item::create(LogoPayload{{"Logo", {{QUuid::createUuid(), {"a.png", "a.png"}, {}, {}}}}});

  explicit Bench(int tiles) {
    Section section = Section::create("Section");
    for (const Item& item : {color, gradient, code, logo}) section.items.append(item);
    for (int i = 4; i < tiles; ++i)
      section.items.append(i % 3 ? colorItem(QString::number(i)) : imageItem(QString::number(i)));
    library.add("Acme", {section});
    start();
    Motion::of(engine).setReduced(true);
    main->prepareSheets();
    QTest::qWait(500);
    frame();
  }

  ContentModel& content() const { return *window().property("content").value<ContentModel*>(); }
  BrandWorkspace& workspace() const { return *content().workspace(); }
  TileCommands& commands() const { return workspace().commands(); }
  template <class Sheet>
  Sheet& sheet() const {
    return *qobject_cast<Sheet*>(content().sheets()->current());
  }
  // All that is due, and the frame that shows it.
  void frame() const {
    QCoreApplication::processEvents();
    (void)window().grabWindow();
  }
  // What was put off to a later turn of an event loop, which doesn't run here.
  void settle() const {
    for (int i = 0; i < 3; ++i) frame();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  double timed(const std::function<void()>& act) const {
    QElapsedTimer clock;
    clock.start();
    act();
    frame();
    return double(clock.nsecsElapsed()) / 1e6;
  }
  void rightPress(QPoint at) const { QTest::mousePress(&window(), Qt::RightButton, {}, at); }
  void rightRelease(QPoint at) const { QTest::mouseRelease(&window(), Qt::RightButton, {}, at); }
  void closeSheet() const {
    press(Qt::Key_Escape);
    settle();
  }
};

// How something is opened, and closed again.
struct Way {
  std::function<void()> open;
  std::function<void()> close;
};

// By a press as well: the window asks all its items for whom it is, whatever it opens.
constexpr char menuReference[] = R"(
  import QtQuick
  import QtQuick.Controls.Basic
  MouseArea {
    id: place
    property Menu opened
    width: 40; height: 40; acceptedButtons: Qt.RightButton
    onPressed: { opened = three.createObject(place); opened.popup() }
    Component {
      id: three
      Menu { MenuItem { text: "One" } MenuItem { text: "Two" } MenuItem { text: "Three" } }
    }
  })";
constexpr char sheetReference[] = R"(
  import QtQuick
  import QtQuick.Controls.Basic
  Popup {
    modal: true; focus: true; x: 200; y: 200
    Column { TextField { focus: true } TextField {} TextField {} }
  })";

std::unique_ptr<QObject> made(Bench& bench, const char* qml) {
  QQmlComponent component(&bench.engine);
  component.setData(qml, QUrl());
  std::unique_ptr<QObject> object(component.createWithInitialProperties(
      {{"parent", QVariant::fromValue(bench.window().contentItem())}}));
  if (!object) qFatal("%s", qPrintable(component.errorString()));
  return object;
}

// A menu and a popup of the toolkit's own in the same window, made at each opening.
Way referenceMenu(Bench& bench) {
  const auto place = std::make_shared<std::unique_ptr<QObject>>();
  return {[&bench, place] {
            // Ours loads at its first opening as well.
            if (!*place) *place = made(bench, menuReference);
            bench.rightPress({20, 20});
          },
          [&bench, place] {
            bench.rightRelease({20, 20});
            delete (*place)->property("opened").value<QObject*>();
            bench.frame();
          }};
}

Way referencePopup(Bench& bench) {
  const auto popup = std::make_shared<std::unique_ptr<QObject>>();
  return {[&bench, popup] {
            *popup = made(bench, sheetReference);
            QMetaObject::invokeMethod(popup->get(), "open");
          },
          [&bench, popup] {
            popup->reset();
            bench.frame();
          }};
}

// In turns, as the machine is not of the same speed all the time.
void compare(const Bench& bench, const char* what, const Way& ours, const Way& theirs,
             std::optional<double>& theirFirst) {
  const auto take = [&](const Way& way) {
    const double taken = bench.timed(way.open);
    way.close();
    return taken;
  };
  const double first = take(ours);
  if (!theirFirst) theirFirst = take(theirs);
  std::vector<double> later, theirLater;
  for (int i = 0; i < rounds; ++i) {
    later.push_back(take(ours));
    theirLater.push_back(take(theirs));
  }
  std::printf("%s: first %.1f ms (toolkit's %.1f), later %.1f ms (%.1f)\n", what, first,
              *theirFirst, median(later), median(theirLater));
  const QByteArray name(what);
  printRatio((name + ", first / the toolkit's").constData(), first / *theirFirst, Aim::atMost, 3);
  printRatio((name + ", later / the toolkit's").constData(), median(later) / median(theirLater),
             Aim::atMost, 1.5);
}

void benchOpening() {
  Bench bench(20);
  std::optional<double> menuFirst, sheetFirst;  // the toolkit's, which are so once alone
  const QPoint tile = Bench::centerOf(bench.item(row, "Color"));
  const Way menu{[&] { bench.rightPress(tile); },
                 [&] {
                   bench.rightRelease(tile);
                   bench.closeSheet();
                 }};
  compare(bench, "a tile's menu", menu, referenceMenu(bench), menuFirst);
  const Way toolkitSheet = referencePopup(bench);
  const auto compareSheet = [&](const char* what, const std::function<void()>& open) {
    compare(bench, what, {open, [&] { bench.closeSheet(); }}, toolkitSheet, sheetFirst);
  };
  compareSheet("the colour editor", [&] { bench.commands().edit(bench.color.id); });
  compareSheet("the gradient editor", [&] { bench.commands().edit(bench.gradient.id); });
  compareSheet("the code editor", [&] { bench.commands().edit(bench.code.id); });
  compareSheet("the sheet of a name", [&] { bench.commands().rename(bench.color.id); });
  compareSheet("the sheet of notes", [&] { bench.commands().editNotes(bench.color.id); });
  compareSheet("the sheet of a logo set", [&] { bench.commands().editVariants(bench.logo.id); });
  compareSheet("the emblem picker",
               [&] { bench.workspace().sections()->models().front()->editEmblem(); });

  // What is made once, and what the engine's heap settles at, have come by then.
  double settled = 0;
  for (int i = 1; i <= 300; ++i) {
    bench.commands().edit(i % 2 ? bench.color.id : bench.gradient.id);
    bench.frame();
    bench.closeSheet();
    if (i == 100) settled = residentMegabytes();
  }
  std::printf("memory after 300 sheets: %.1f MB more than after 100 (aim: none)\n",
              residentMegabytes() - settled);
}

constexpr char windowReference[] = R"(
  import QtQuick
  import QtQuick.Controls.Basic
  Window { width: 460; height: 640; Button { text: "One" } })";

struct NoTray : StatusItem {
  void install(const QIcon&, const QString&, std::function<void()>, std::vector<Command>) override {
  }
  void followTray(std::function<void()>) override {}
  bool isInTray() const override { return false; }
  QRect place() const override { return {}; }
};

struct NoTaskbar : Taskbar {
  bool canHideWindows() const override { return false; }
  void setWindowsShown(bool) override {}
};

struct NoLogin : LoginItem {
  bool isOn() const override { return false; }
  Result<void> setOn(bool) override { return {}; }
};

// Each in a program whose main window is up, until the picture of the new one is there.
void benchSettings() {
  std::vector<double> ours, theirs;
  for (int i = 0; i < rounds; ++i) {
    Bench bench(20);
    NoTray tray;
    NoTaskbar taskbar;
    NoLogin login;
    MenuBarPrefs menuBar(bench.library.preferences, bench.library.disk.log);
    FakeUpdater updater;
    UpdaterViewModel updates(updater, bench.library.preferences, systemNow);
    updates.start();
    SettingsWindow settings(
        bench.engine, {*bench.library.store, menuBar, bench.library.dialogs, bench.library.viewer,
                       tray, taskbar, login, updates, [] { return nullptr; }});
    // The frame of the showing itself: what was drawn ahead isn't on the screen.
    const auto awaitFrame = [](const QQuickWindow& window) {
      const QSignalSpy frames(&window, &QQuickWindow::frameSwapped);
      while (frames.isEmpty()) QCoreApplication::processEvents();
    };
    const auto openTheirs = [&] {
      QQmlComponent component(&bench.engine);
      component.setData(windowReference, QUrl());
      const std::unique_ptr<QObject> made(component.create());
      auto* const window = qobject_cast<QQuickWindow*>(made.get());
      window->show();
      awaitFrame(*window);
    };
    const auto openOurs = [&] {
      settings.open(nullptr);
      awaitFrame(*settings.window());
    };
    settings.prepare();
    QTest::qWait(100);
    theirs.push_back(bench.timed(openTheirs));
    ours.push_back(bench.timed(openOurs));
  }
  std::printf("the settings, first: %.1f ms (the smallest window's %.1f)\n", median(ours),
              median(theirs));
  printRatio("the settings' first opening / the smallest window with one control",
             median(ours) / median(theirs), Aim::atMost, 2);
}

// Medians, in milliseconds.
struct Edits {
  double name;
  double slider;
  double expanding;
};

Edits edits(int tiles) {
  Bench bench(tiles);
  std::vector<double> name, slider, expanding;
  bench.commands().edit(bench.color.id);
  bench.frame();
  for (int i = 0; i < 60; ++i) {
    name.push_back(bench.timed(
        [&] { bench.sheet<ItemEditorSheet>().color()->setName("Typed " + QString::number(i)); }));
  }
  bench.closeSheet();
  bench.commands().edit(bench.gradient.id);
  bench.frame();
  for (int i = 0; i < 60; ++i) {
    slider.push_back(
        bench.timed([&] { bench.sheet<ItemEditorSheet>().gradient()->setLocation(0, i / 60.0); }));
  }
  bench.closeSheet();
  LibraryPreferences& preferences = bench.library.store->preferences();
  for (int i = 0; i < rounds; ++i) {
    expanding.push_back(bench.timed([&] {
      preferences.setAssetDisplayMode(AssetDisplayMode::expanded);
      bench.frame();
      preferences.setAssetDisplayMode(AssetDisplayMode::compact);
    }));
  }
  return {median(name), median(slider), median(expanding)};
}

void benchEdits() {
  const Edits few = edits(20), many = edits(10'000);
  std::printf(
      "with 20 tiles and 10,000: a keystroke %.1f and %.1f ms, a slider's step %.1f and "
      "%.1f ms, expanding and back %.1f and %.1f ms\n",
      few.name, many.name, few.slider, many.slider, few.expanding, many.expanding);
  printRatio("a keystroke in a colour's name, 10,000 tiles / 20", many.name / few.name, Aim::atMost,
             1.5);
  printRatio("a step of a gradient's slider, 10,000 tiles / 20", many.slider / few.slider,
             Aim::atMost, 1.5);
  printRatio("expanding and back, 10,000 tiles / 20", many.expanding / few.expanding, Aim::atMost,
             2);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_QUICK_BACKEND", "software");
  const QGuiApplication application(argc, argv);
  benchOpening();
  benchSettings();
  benchEdits();
  return 0;
}
