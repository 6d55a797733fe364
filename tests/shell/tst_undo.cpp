#include "shell/menus/WindowUndo.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

// A value with undo, as a document has it.
struct Value {
  int value = 0;

  void set(int next, UndoManager& undo, const QString& name) {
    const int before = value;
    value = next;
    restoreLater(before, undo, name);
  }
  void restoreLater(int before, UndoManager& undo, const QString& name) {
    undo.registerUndo([this, before, &undo, name] {
      const int present = value;
      value = before;
      restoreLater(present, undo, name);
    });
    undo.setActionName(name);
  }
};

}  // namespace

class TestUndo : public QObject {
  Q_OBJECT

 private slots:
  void tellsOfEachChange() {
    WindowUndo undo;
    QSignalSpy changed(&undo, &WindowUndo::changed);
    Value value;
    value.set(1, undo, "Delete");
    QVERIFY(!changed.isEmpty());
    changed.clear();
    undo.undo();
    QVERIFY(!changed.isEmpty());
    undo.undo();  // nothing is left
    QCOMPARE(value.value, 0);
  }

  // As one whose document has gone.
  void aStepWithoutAnInverseIsDropped() {
    WindowUndo undo;
    Value value;
    value.set(1, undo, "One");
    undo.registerUndo([] {});
    undo.setActionName("Gone");
    undo.undo();
    undo.setActionName("Nobody's");
    QVERIFY(!undo.canRedo());
    QCOMPARE(undo.undoText(), "Undo One");
    undo.undo();
    QCOMPARE(value.value, 0);
  }

  void forgetsAllSteps() {
    WindowUndo undo;
    Value value;
    value.set(1, undo, "One");
    value.set(2, undo, "Two");
    undo.undo();
    undo.clear();
    undo.setActionName("Nobody's");
    QVERIFY(!undo.canUndo() && !undo.canRedo());
    QCOMPARE(undo.undoText(), "Undo");
  }

  void goesBackAndForthAlongWhatWasDone() {
    QRandomGenerator random(7);
    for (int run = 0; run < 200; ++run) {
      WindowUndo undo;
      Value value;
      QList<int> states{0};  // each but the first under its own name
      qsizetype at = 0;
      const auto text = [&](const QString& verb, qsizetype state) {
        const bool isThere = state > 0 && state < states.size();
        return isThere ? verb + ' ' + QString::number(states.at(state)) : verb;
      };
      for (int step = 1; step < 30; ++step) {
        switch (random.bounded(3)) {
          case 0:
            value.set(step, undo, QString::number(step));
            states.resize(++at);
            states << step;
            break;
          case 1:
            undo.undo();
            at = std::max<qsizetype>(at - 1, 0);
            break;
          case 2:
            undo.redo();
            at = std::min(at + 1, states.size() - 1);
            break;
        }
        QCOMPARE(value.value, states.at(at));
        QCOMPARE(undo.canUndo(), at > 0);
        QCOMPARE(undo.canRedo(), at + 1 < states.size());
        QCOMPARE(undo.undoText(), text("Undo", at));
        QCOMPARE(undo.redoText(), text("Redo", at + 1));
      }
    }
  }
};

QTEST_GUILESS_MAIN(TestUndo)
#include "tst_undo.moc"
