#include "shell/TestViews.h"
#include "testing/Cases.h"

#include <QScreen>
#include <QSignalSpy>

#include <algorithm>

using namespace tarnloft;

namespace {

// The brand's page, or null.
QQuickItem* pageIn(QQuickItem* item) {
  if (item->property("workspace").value<QObject*>()) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = pageIn(child)) return found;
  }
  return nullptr;
}

}  // namespace

class TestMainWindow : public QObject {
  Q_OBJECT

 private slots:
  void keepsItsState() {
    const Cases<WindowState> cases{
        {"default", WindowState{}},
        {"maximised", WindowState{QPoint(-5, 7), {900, 600}, Maximized::yes, 200}},
        {"placed", WindowState{QPoint(0, 0), {2000, 1000}, Maximized::no, 333}}};
    cases.check([&](const WindowState& state) {
      TestServices disk;
      const QString path = disk.path("new folder/state.ini");
      {
        IniPreferences store(path, disk.log);
        WindowState{QPoint(1, 1), {1000, 700}, Maximized::yes, 250}.write(store);
        if (!state.position) store.remove("windowX");
        state.write(store);
      }
      QVERIFY(WindowState::read(IniPreferences(path, disk.log)) == state);
    });
  }

  void fitsTheScreens() {
    const auto state = [](std::optional<QPoint> position, QSize size) {
      return WindowState{position, size, Maximized::no, 240};
    };
    const QSize usual(1160, 760);
    const Cases<WindowState, WindowState> cases{
        {"on the second", state(QPoint(1500, 10), usual), state(QPoint(1500, 10), usual)},
        {"far aside", state(QPoint(-1100, 10), usual), state(std::nullopt, usual)},
        {"above", state(QPoint(10, -20), usual), state(std::nullopt, usual)},
        {"screen has gone", state(QPoint(5000, 10), usual), state(std::nullopt, usual)},
        {"too large", state(QPoint(10, 10), {3000, 2000}), state(QPoint(10, 10), {1280, 1024})},
        {"anywhere", state(std::nullopt, usual), state(std::nullopt, usual)}};
    cases.check([&](const WindowState& kept, const WindowState& fitted) {
      const QList<QRect> screens{{0, 0, 1280, 1024}, {1280, 0, 1920, 1080}};
      QVERIFY(kept.fitting(screens) == fitted);
    });
  }

  void rightSizesOnce() {
    TestServices disk;
    IniPreferences preferences(disk.path("preferences.ini"), disk.log);
    QWindow window;
    window.resize(990, 700);
    rightSizeWindow(&window, preferences);
    const QRect room = window.screen()->availableGeometry();
    QVERIFY(window.height() + 60 <= room.height());  // with a title bar and a panel
    QVERIFY(window.framePosition().y() >= room.top());
    window.resize(900, 700);
    rightSizeWindow(&window, preferences);
    QCOMPARE(window.size(), QSize(900, 700));
  }

  void opensAndClosesAndOpensAnew() {
    Views views;
    views.start({"Acme"});
    MainWindow& main = *views.main;
    QSignalSpy closed(&main, &MainWindow::closed);
    QPointer<QQuickWindow> window = main.window();
    const QRect screen = window->screen()->availableGeometry();
    QCOMPARE(window->size(), WindowState().fitting({screen}).size);
    QCOMPARE(window->minimumSize(), WindowState::minimumSize);
    QCOMPARE(window->title(), "Acme — Tarn Loft");
    QVERIFY(main.open());
    QCOMPARE(main.window(), window.data());

    window->resize(860, 600);
    window->close();
    QTRY_COMPARE(closed.size(), 1);
    QVERIFY(!window);
    QVERIFY(!main.window());
    views.library.store->createBrand("While closed");

    QVERIFY(main.open());
    QCOMPARE(main.window()->size(), QSize(860, 600));
    QCOMPARE(main.window()->title(), "While closed — Tarn Loft");
  }

  // The toolkit leaves a list's views to the event loop's next turn, which the end hasn't got.
  void takesItsViewsAlong() {
    for (const bool closed : {false, true}) {
      Views test;
      test.library.add("Acme", {Section::create("S")});
      test.start();
      std::unique_ptr<MainWindow>& main = test.main;
      QTRY_VERIFY(pageIn(main->window()->contentItem()));
      QList<QPointer<QQuickItem>> views;
      views << main->window()->contentItem();
      for (qsizetype i = 0; i < views.size(); ++i) {
        for (QQuickItem* const view : views.at(i)->childItems()) views << view;
      }
      const QPointer<QObject> workspace =
          pageIn(views.first())->property("workspace").value<QObject*>();
      if (closed) {
        main->window()->close();
        QCoreApplication::sendPostedEvents(main.get(), QEvent::MetaCall);
        QVERIFY(!main->window());
      }
      main.reset();
      QVERIFY(!workspace && std::ranges::all_of(views, &QPointer<QQuickItem>::isNull));
    }
  }
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
