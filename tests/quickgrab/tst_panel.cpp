#include "controls/motion/Motion.h"
#include "controls/theme/Theme.h"
#include "controls/theme/Typography.h"
#include "quickgrab/TestPanel.h"
#include "quickgrab/panel/GrabViews.h"
#include "quickgrab/panel/PanelPlacement.h"
#include "quickgrab/panel/QuickGrabPanel.h"
#include "testing/Cases.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TarnLoft_ControlsPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_PicturesPlugin)
Q_IMPORT_QML_PLUGIN(TarnLoft_QuickGrabPlugin)

using namespace tarnloft;

namespace {

// The panel in its window, with the keyboard.
struct ShownPanel : TestPanel {
  QQmlEngine engine;
  QuickGrabPanel panel{[this]() -> QQmlEngine& { return engine; }, grabServices(),
                       [] { return true; }};

  explicit ShownPanel(const QList<Section>& sections) : TestPanel(sections) {
    QTest::failOnWarning(QRegularExpression("qrc:|QML|Binding"));
    prepareTypography();
    Theme::of(engine);
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(panel.window()));
  }
};

}  // namespace

// The panel's window, worked by keys and the pointer.
class TestPanelWindow : public QObject {
  Q_OBJECT

 private slots:
  void isWorkedByKeysAlone() {
    QAccessible::setActive(true);
    ShownPanel desk({sectionOfAll()});
    writeFile(desk.library.packagePath("Acme") + "/assets/a.png", "picture");
    Motion::of(desk.engine).setReduced(true);
    QuickGrabPanel& panel = desk.panel;
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
      QTest::keyClick(panel.window(), key, modifiers);
    };
    const auto copied = [&] {
      return desk.pasteboard.texts.isEmpty() ? QString() : desk.pasteboard.texts.takeLast();
    };
    for (const Qt::Key key : {Qt::Key_S, Qt::Key_E, Qt::Key_A, Qt::Key_Return}) press(key);
    QCOMPARE(copied(), QString("#0000FF"));
    press(Qt::Key_Escape);
    QVERIFY(!panel.isShown());
    panel.toggle(QuickGrabPanel::By::key);
    QVERIFY(QTest::qWaitForWindowActive(panel.window()));
    QCOMPARE(panel.grab().search(), QString("sea"));
    press(Qt::Key_Delete);  // what was typed last is selected
    QVERIFY(panel.grab().search().isEmpty());
    press(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(copied(), QString("#AABBCC"));
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    const QAccessibleInterface* const focused =
        QAccessible::queryAccessibleInterface(panel.window()->activeFocusItem());
    QVERIFY(focused && focused->role() == QAccessible::ListItem);
    QCOMPARE(focused->text(QAccessible::Name), QString("Sea"));
    press(Qt::Key_Space);
    QCOMPARE(copied(), QString("#0000FF"));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QCOMPARE(desk.pasteboard.forms.value(0).mimeType, QString("text/uri-list"));
    press(Qt::Key_M);
    QCOMPARE(panel.grab().search(), QString("m"));
    QTest::mouseClick(panel.window(), Qt::LeftButton, {}, QPoint(3, 3));  // beside the panel
    QVERIFY(!panel.isShown());
    for (const bool shows : {true, false, true}) {
      panel.toggle(QuickGrabPanel::By::key);
      QCOMPARE(panel.isShown(), shows);
    }
  }

  // Views turn from one thing into another, but none under a press.
  void viewsFollowWhatIsTyped() {
    ShownPanel desk(
        {sectionOfAll(), colorSection("Greys", 30),
         sectionOf("More", {textItem("Sun"),
                            Item::create(LogoPayload{
                                {"Sign", {{QUuid::createUuid(), {"s.svg", "s.svg"}, {}, {}}}}})})});
    for (const auto set : {&MenuBarPrefs::setShowType, &MenuBarPrefs::setShowCode})
      (*desk.prefs.*set)(true);
    QuickGrabPanel& panel = desk.panel;
    const auto* const views = panel.window()->findChild<GrabViews*>();
    QRandomGenerator random(7);
    for (int round = 0; round < 60; ++round) {
      const QStringList texts{"", "", "s", "se", "i", "a", "2", "greys", "nothing"};
      panel.grab().setSearch(texts.at(random.bounded(texts.size())));
      QList<GrabThing> shown;
      for (const QQuickItem* const view : views->childItems()) {
        if (!view->isVisible()) continue;
        shown << view->property("thing").value<GrabThing>();
        QCOMPARE(view->position().toPoint(), shown.last().room.topLeft());
      }
      QCOMPARE(shown, panel.grab().things());
    }
    panel.grab().setSearch("sky");
    const QPoint at = views->mapToScene(panel.grab().things().last().room.center()).toPoint();
    QTest::mousePress(panel.window(), Qt::LeftButton, {}, at);
    panel.grab().setSearch("sea");  // which stands there now
    QTest::mouseRelease(panel.window(), Qt::LeftButton, {}, at);
    QVERIFY(desk.pasteboard.texts.isEmpty());
    QTest::mouseClick(panel.window(), Qt::LeftButton, {}, at);
    QCOMPARE(desk.pasteboard.texts, QStringList{"#0000FF"});

    writeFile(desk.library.packagePath("Acme") + "/assets/s.svg", "picture");
    panel.grab().setSearch("mark");
    const QPoint picture = views->mapToScene(panel.grab().things().last().room.center()).toPoint();
    for (const bool changes : {true, false}) {  // while the button is down
      QTest::mousePress(panel.window(), Qt::LeftButton, {}, picture);
      if (changes) panel.grab().setSearch("sign");
      for (const int by : {6, 12, 18}) QTest::mouseMove(panel.window(), picture + QPoint(by, by));
      QCOMPARE(QTest::qWaitFor([&] { return !desk.drags.items.isEmpty(); }, 200), !changes);
      QTest::mouseRelease(panel.window(), Qt::LeftButton, {}, picture + QPoint(18, 18));
    }
    QVERIFY(desk.drags.items.first().suggestedName.contains("s"));
  }

  // It goes with the keyboard; the click that took that doesn't bring it back, but the next one
  // does.
  void goesWithTheKeyboard() {
    ShownPanel desk({sectionOfAll()});
    QuickGrabPanel& panel = desk.panel;
    QWindow other;
    other.show();
    other.requestActivate();
    QTRY_VERIFY(!panel.isShown());
    for (const bool shows : {false, true}) {
      panel.toggle(QuickGrabPanel::By::click);
      QCOMPARE(panel.isShown(), shows);
    }
  }

  void standsBesideItsIcon() {
    const QRect screen(0, 0, 1000, 800);
    Cases<QRect, QRect, QPoint>{
        {"below one at the top", {500, 0, 20, 20}, screen, {339, 24}},
        {"above one at the bottom", {500, 780, 20, 20}, screen, {339, 296}},
        {"inside the screen", {990, 790, 1, 1}, screen, {654, 306}},
        {"on another screen", {1500, 0, 20, 20}, {1000, 0, 1000, 800}, {1339, 24}},
        {"on one that is too low", {100, 50, 20, 20}, {0, 0, 400, 300}, {6, 6}},
    }
        .check([](const QRect& icon, const QRect& on, const QPoint& place) {
          QCOMPARE(panelPlace(icon, QuickGrabPanel::size, on), place);
        });
  }
};

QTEST_MAIN(TestPanelWindow)
#include "tst_panel.moc"
