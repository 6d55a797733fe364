#include "entry/CommandLine.h"
#include "entry/SupportFolder.h"
#include "testing/Cases.h"
#include "testing/FaultyStore.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

class TestEntry : public QObject {
  Q_OBJECT

 private slots:
  // What a start asks for, and hands to the program that runs already.
  void knowsWhatAStartAsksFor() {
    const QString here = QDir::currentPath();
    const Cases<QStringList, ApplicationMode> cases{
        {"nothing", {}, {}},
        {"action", {"--preferences", "a.zip"}, {"preferences", {}}},
        {"unknown option", {"a.zip", "-x"}, {}},
        {"files",
         {"/tmp/a, b%2C.zip", "../c\n\u00e9.tarnloft/"},
         {{}, {"/tmp/a, b%2C.zip", QFileInfo(here).path() + "/c\n\u00e9.tarnloft"}}},
    };
    cases.check([](const QStringList& arguments, const ApplicationMode& asked) {
      QVERIFY(modeOf(QStringList("tarnloft") + arguments) == Mode(asked));
      const QByteArray word = wordOf(asked);
      QVERIFY(askedBy(word) == asked);
      QVERIFY(!word.contains(' ') && !word.contains('\n'));
    });
  }

  void takesTheOldFolderOverWhereThereIsNoNewOne() {
    TestServices disk;
    const auto migrate = [&] {
      SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
    };
    migrate();
    QVERIFY(QDir(disk.folder.path()).isEmpty());
    for (const char* content : {"first", "second"}) {
      QVERIFY(writeFile(disk.path("Fenwright/x"), content));
      migrate();
      QCOMPARE(contentOf(disk.path("Tarn Loft/x")), QByteArray("first"));
    }
    QCOMPARE(contentOf(disk.path("Fenwright/x")), QByteArray("second"));
    QCOMPARE(disk.log.lines.size(), 1);
  }

  void logsAFailedMove() {
    TestServices disk;
    FaultyStore files;
    files.fault = FaultyStore::Fault::failStep;
    files.atStep = 1;
    QVERIFY(QDir().mkpath(disk.path("Fenwright")));
    SupportFolder::migrateIfNeeded(files, disk.log, disk.folder.path());
    QCOMPARE(disk.log.lines,
             QStringList("support folder migration failed: No space left on device"));
    QVERIFY(disk.files.exists(disk.path("Fenwright")));
  }
};

QTEST_APPLESS_MAIN(TestEntry)
#include "tst_entry.moc"
