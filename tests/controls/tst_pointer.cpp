#include "Stage.h"
#include "testing/Cases.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QWheelEvent>

using namespace tarnloft;

namespace {

const QString area =
    "ScrollArea { objectName: 'area'; width: 200; height: 100\n"
    "  Column { Repeater { model: 10; Button { required property int index; height: 50\n"
    "    text: 'B' + index; objectName: text; onClicked: log(text) } } } }";

void wheel(Stage& stage, const QPoint& pixels, int notches) {
  const QPointF place(100, 50);
  QWheelEvent event(place, stage.window()->mapToGlobal(place), pixels, QPoint(0, notches * 120),
                    Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(stage.window(), &event);
}

qreal scrolled(const Stage& stage) { return stage.find("area")->property("contentY").toReal(); }

}  // namespace

// Wheel, hover and clicks.
class TestPointer : public QObject {
  Q_OBJECT

 private slots:
  void aNotchGlides() {
    Stage stage(area);
    wheel(stage, {}, -1);
    QVERIFY(scrolled(stage) < 84);
    wheel(stage, {}, -1);
    QTRY_COMPARE(scrolled(stage), 168.0);
    wheel(stage, {}, 20);
    QTRY_COMPARE(scrolled(stage), 0.0);
    // A touchpad moves by pixels.
    wheel(stage, {0, -13}, 0);
    QCOMPARE(scrolled(stage), 13.0);
    wheel(stage, {0, -4000}, 0);
    QCOMPARE(scrolled(stage), 400.0);
  }

  void theWheelGoesOnAtTheEnd() {
    Stage stage(
        "ScrollArea { objectName: 'area'; width: 200; height: 100\n"
        "  Column { TextEditor { width: 200; height: 100; text: 'a\\nb' } Item { "
        "width: 9; height: 300 } } }");
    wheel(stage, {0, -30}, 0);
    QCOMPARE(scrolled(stage), 30.0);
  }

  void aDragOfTheMouseScrollsNothing() {
    Stage stage(area);
    QTest::mousePress(stage.window(), Qt::LeftButton, {}, {150, 90});
    for (int y = 85; y > 10; y -= 5) QTest::mouseMove(stage.window(), {150, y});
    QTest::mouseRelease(stage.window(), Qt::LeftButton, {}, {150, 10});
    QCOMPARE(scrolled(stage), 0.0);
  }

  void focusIsScrolledIntoView() {
    Stage stage(area);
    for (int i = 0; i < 6; ++i) stage.press(Qt::Key_Tab);
    QCOMPARE(stage.focused(), "B5");
    QVERIFY(scrolled(stage) >= 200);
    for (int i = 0; i < 5; ++i) stage.press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(scrolled(stage), 0.0);
  }

  void helpComesAfterAWhile() {
    Stage stage(
        "Rectangle { objectName: 'thing'; width: 50; height: 50\n"
        "  Help { objectName: 'help'; delay: 10; below: 30; text: 'Drag to reorder' } }");
    const auto tip = [&stage] { return stage.find("help")->property("tip").value<QObject*>(); };
    QTest::mouseMove(stage.window(), {20, 20});
    QTRY_VERIFY(tip() && tip()->property("opened").toBool());
    QCOMPARE(tip()->property("text").toString(), "Drag to reorder");
    QTest::mouseMove(stage.window(), {300, 300});
    QTRY_VERIFY(!tip());
    // Who has pressed the thing needs no telling.
    QTest::mouseMove(stage.window(), {20, 20});
    QTest::mouseClick(stage.window(), Qt::LeftButton, {}, {20, 20});
    QTest::qWait(100);
    QVERIFY(!tip());
    QTest::mouseMove(stage.window(), {300, 300});
    QTest::mouseMove(stage.window(), {20, 20});
    QTRY_VERIFY(tip());
  }

  void aRightClickOpensTheContextMenu() {
    const QString piece =
        "Rectangle { objectName: 'tile'; width: 100; height: 100; activeFocusOnTab: true\n"
        "  ContextMenuArea { objectName: 'area'; onRequested: log('requested')\n"
        "    menu: Menu { MenuItem { text: 'Delete'; onTriggered: log('Delete') } } } }";
    const Cases<QString> cases{
        {"alone", piece},
        {"of a delegate", QString("Repeater { model: 1; delegate: %1 }").arg(piece)}};
    cases.check([&](const QString& qml) {
      Stage stage(qml);
      auto* tile = stage.find<QQuickItem>("tile");
      const auto menuIsOpen = [tile] {
        const auto* area = tile->findChild<QObject*>("area");
        return area->property("opened").value<QObject*>()->property("visible").toBool();
      };
      stage.click(tile, Qt::RightButton);
      QCOMPARE(stage.log(), "requested");
      QTRY_VERIFY(menuIsOpen());
      stage.press(Qt::Key_Down);
      stage.press(Qt::Key_Return);
      QTRY_COMPARE(stage.log(), "requested Delete");
      QTRY_VERIFY(!menuIsOpen());
      stage.press(Qt::Key_Tab);
      stage.press(Qt::Key_F10, Qt::ShiftModifier);
      QTRY_COMPARE(stage.log(), "requested Delete requested");
    });
  }

  void textItemsHaveAMenu() {
    for (const bool byKeyboard : {false, true}) {
      for (const char* type : {"TextField", "TextArea"}) {
        Stage stage(type + QString(" { objectName: 'field'; text: 'Acme'; width: 200 }"));
        auto* field = stage.find<QQuickItem>("field");
        stage.press(Qt::Key_Tab);
        QMetaObject::invokeMethod(field, "selectAll");
        byKeyboard ? stage.press(Qt::Key_F10, Qt::ShiftModifier)
                   : stage.click(field, Qt::RightButton);
        QTRY_VERIFY2(!field->hasActiveFocus(), type);
        stage.press(Qt::Key_C);  // Cut, and no letter of the text
        stage.press(Qt::Key_Return);
        QTRY_COMPARE(field->property("text").toString(), QString());
        QTRY_VERIFY2(field->hasActiveFocus(), type);
        QCOMPARE(QGuiApplication::clipboard()->text(), "Acme");
      }
    }
  }

  void aClickOutsideLeavesASheet() {
    Stage stage(
        "Button { objectName: 'under'; text: 'A'; onClicked: log('under') }\n"
        "Sheet { objectName: 'sheet'; Item { width: 100; height: 100 } }");
    QMetaObject::invokeMethod(stage.find("sheet"), "open");
    QTRY_VERIFY(stage.find("sheet")->property("opened").toBool());
    stage.click(stage.find<QQuickItem>("under"));
    QVERIFY(stage.find("sheet")->property("opened").toBool());
    QCOMPARE(stage.log(), QString());
  }

  void theColorPanelRemembersTheHueOfGrey() {
    Stage stage(
        "ColorPanel { objectName: 'panel'; color: '#336699'\n"
        "  onPicked: picked => color = picked }");
    auto* panel = stage.find("panel");
    const qreal hue = panel->property("hue").toReal();
    QVERIFY(std::abs(hue - 210.0 / 360) < 0.01);
    stage.eval("children[0].pick(children[0].hue, 0, 0.5)");
    QCOMPARE(panel->property("color").value<QColor>().name(), "#808080");
    QCOMPARE(panel->property("hue").toReal(), hue);
    stage.eval("children[0].pick(children[0].hue, 1, 1)");
    QCOMPARE(panel->property("color").value<QColor>().name(), "#0080ff");
  }
};

QTEST_MAIN(TestPointer)
#include "tst_pointer.moc"
