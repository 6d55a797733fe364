#include "quickgrab/TestPanel.h"
#include "testing/Cases.h"

#include <QTest>

using namespace tarnloft;

using State = QuickGrab::State;
using Step = QuickGrab::Step;

class TestQuickGrab : public QObject {
  Q_OBJECT

 private slots:
  // What the switches and the search leave of a brand.
  void reducesTheBrand() {
    TestPanel panel({sectionOfAll(), colorSection("Bare", 1), Section::create("None")});
    const auto setKinds = [&](const QString& kinds) {
      panel.prefs->setShowColors(kinds.contains('c'));
      panel.prefs->setShowLogos(kinds.contains('l'));
      panel.prefs->setShowType(kinds.contains('t'));
      panel.prefs->setShowGradients(kinds.contains('g'));
      panel.prefs->setShowCode(kinds.contains('s'));
      QCoreApplication::processEvents();
    };
    const QStringList bare{"# Bare 1", "color 0"};
    Cases<QString, QString, State, QStringList>{
        {"as at first", "cl", "", State::List,
         QStringList{"# Kit 4", "## Colors 2", "color Sky", "color Sea", "## Logos & Images 2",
                     "media Image", "media Mark on dark"} +
             bare},
        {"one kind alone has no title", "c", "", State::List,
         QStringList{"# Kit 2", "color Sky", "color Sea"} + bare},
        {"the rest", "tgs", "", State::List,
         QStringList{"# Kit 3", "## Type 1", "font Text face", "## Gradients 1",
                     "gradient Gradient", "## Code 1", "code css"}},
        {"search by any text", "cltgs", " BOLD\n", State::List, {"# Kit 1", "font Text face"}},
        {"spaces match all", "c", "  ", State::List,
         QStringList{"# Kit 2", "color Sky", "color Sea"} + bare},
        {"a header is no match", "cl", "Header", State::NoMatches, {}},
        {"no kinds, whatever the search", "", "sky", State::NoTypes, {}},
    }
        .check([&](const QString& kinds, const QString& search, State state,
                   const QStringList& shown) {
          setKinds(kinds);
          panel.grab->setSearch(search);
          QCOMPARE(panel.grab->state(), state);
          QCOMPARE(panel.shown(), shown);
        });
    setKinds("cl");
    panel.grab->setSearch("");
    panel.grab->chooseBrand(panel.library.packagePath("Empty"));
    QCoreApplication::processEvents();
    QCOMPARE(panel.grab->state(), State::Nothing);
    panel.library.store->deleteBrand(panel.library.store->brands().at(1));
    panel.library.store->deleteBrand(panel.library.store->brands().at(0));
    QCoreApplication::processEvents();
    QCOMPARE(panel.grab->state(), State::NoBrand);
    QVERIFY(!panel.grab->hasDocument() && panel.shown().isEmpty());
  }

  void copiesAndTellsOfIt() {
    TestPanel panel({sectionOfAll()});
    panel.prefs->setShowType(true);
    panel.prefs->setShowGradients(true);
    panel.prefs->setShowCode(true);
    QCoreApplication::processEvents();
    Cases<QString, QString>{
        {"Sky", "#AABBCC", "Copied #AABBCC"},
        {"Text face", "Inter", "Copied Inter"},
        {"Gradient", "linear-gradient(90deg, #000000 0%, #FFFFFF 100%)", "Copied CSS gradient"},
        {"css", "a {\n}", "Copied snippet"},
    }
        .check([&](const char* name, const QString& text, const QString& told) {
          panel.grab->copy(panel.place(name));
          QCOMPARE(panel.pasteboard.texts.takeLast(), text);
          QCOMPARE(panel.grab->flashText(), told);
        });
    const auto& things = panel.grab->things();
    QCOMPARE(things.last().detail, QString("a { }"));  // a row has one line
    panel.grab->copy(panel.place("Mark"));
    QVERIFY(panel.pasteboard.texts.isEmpty());
    panel.grab->copyColor(2);
    panel.grab->copyColor(3);
    QCOMPARE(panel.pasteboard.texts, QStringList{"#0000FF"});
    QTRY_VERIFY(panel.grab->flashText().isEmpty());
  }

  // Along and between lines of a grid of seven columns.
  void movesByKeys() {
    TestPanel panel({colorSection("A", 9), sectionOf("B", {imageItem("x"), imageItem("y")})});
    const auto current = [&] { return panel.grab->current(); };
    QVERIFY(panel.grab->move(Step::Down));
    QCOMPARE(current(), panel.place("0"));
    for (const auto& [step, name] :
         std::initializer_list<std::pair<Step, const char*>>{{Step::Right, "1"},
                                                             {Step::Down, "8"},
                                                             {Step::Up, "1"},
                                                             {Step::Last, "y"},
                                                             {Step::Up, "8"},
                                                             {Step::Left, "7"},
                                                             {Step::Down, "x"},
                                                             {Step::PageUp, "1"},
                                                             {Step::First, "0"}}) {
      QVERIFY(panel.grab->move(step));
      QCOMPARE(current(), panel.place(name));
    }
    QVERIFY(!panel.grab->move(Step::Up));
    panel.grab->setSearch("8");
    QCOMPARE(current(), panel.place("8"));
  }
};

QTEST_GUILESS_MAIN(TestQuickGrab)
#include "tst_quickgrab.moc"
