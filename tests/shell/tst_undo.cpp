#include "document/UndoHistory.h"
#include "shell/menus/StackUndoManager.h"

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
    StackUndoManager undo;
    QSignalSpy changed(&undo, &StackUndoManager::changed);
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
    undo.setActionName("Nobody's");
    QVERIFY(!undo.canUndo() && !undo.canRedo());
    QCOMPARE(undo.undoText(), "Undo");
  }

  void takesTheLastPartOfAStepBackFirst() {
    StackUndoManager undo;
    QString order;
    undo.registerUndo([&] {
      for (const char* part : {"a", "b"}) undo.registerUndo([&order, part] { order += part; });
    });
    undo.undo();
    undo.redo();
    QCOMPARE(order, "ba");
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
