#include "document/UndoHistory.h"
#include "shell/StackUndoManager.h"

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
  void takesBackAndBringsBack() {
    StackUndoManager undo;
    Value value;
    value.set(1, undo, "One");
    value.set(2, undo, "Two");
    QCOMPARE(value.value, 2);
    undo.undo();
    QCOMPARE(value.value, 1);
    undo.undo();
    QCOMPARE(value.value, 0);
    QVERIFY(!undo.canUndo());
    undo.undo();
    QCOMPARE(value.value, 0);
    for (int round = 0; round < 3; ++round) {
      undo.redo();
      QCOMPARE(value.value, 1);
      undo.undo();
      QCOMPARE(value.value, 0);
    }
    undo.redo();
    undo.redo();
    QCOMPARE(value.value, 2);
    QVERIFY(!undo.canRedo());
  }

  void namesItsEntries() {
    StackUndoManager undo;
    QCOMPARE(undo.undoText(), "Undo");
    QCOMPARE(undo.redoText(), "Redo");
    QSignalSpy changed(&undo, &StackUndoManager::changed);
    Value value;
    value.set(1, undo, "Delete");
    QVERIFY(!changed.isEmpty());
    QCOMPARE(undo.undoText(), "Undo Delete");
    changed.clear();
    undo.undo();
    QVERIFY(!changed.isEmpty());
    QCOMPARE(undo.undoText(), "Undo");
    QCOMPARE(undo.redoText(), "Redo Delete");
  }

  void aNewStepDropsWhatCouldBeRedone() {
    StackUndoManager undo;
    Value value;
    value.set(1, undo, "One");
    undo.undo();
    value.set(2, undo, "Two");
    QVERIFY(!undo.canRedo());
    undo.undo();
    QCOMPARE(value.value, 0);
  }

  // As one whose document has gone.
  void aStepWithoutAnInverseIsDropped() {
    StackUndoManager undo;
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
    StackUndoManager undo;
    Value value;
    value.set(1, undo, "One");
    value.set(2, undo, "Two");
    undo.undo();
    undo.clear();
    QVERIFY(!undo.canUndo());
    QVERIFY(!undo.canRedo());
    undo.setActionName("Nobody's");
    QCOMPARE(undo.undoText(), "Undo");
  }

  void doesAsTheHistoryInMemoryDoes() {
    QRandomGenerator random(7);
    for (int run = 0; run < 200; ++run) {
      StackUndoManager undo;
      UndoHistory history;
      Value here, there;
      for (int step = 0; step < 30; ++step) {
        const QString name = QString::number(step);
        switch (random.bounded(3)) {
          case 0: here.set(step, undo, name), there.set(step, history, name); break;
          case 1: undo.undo(), history.undo(); break;
          case 2: undo.redo(), history.redo(); break;
        }
        QCOMPARE(here.value, there.value);
        QCOMPARE(undo.canUndo(), history.canUndo());
        QCOMPARE(undo.canRedo(), history.canRedo());
        QCOMPARE(undo.undoText(), ("Undo " + history.undoActionName()).trimmed());
        QCOMPARE(undo.redoText(), ("Redo " + history.redoActionName()).trimmed());
      }
    }
  }
};

QTEST_MAIN(TestUndo)
#include "tst_undo.moc"
