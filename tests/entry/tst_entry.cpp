#include "entry/SupportFolder.h"
#include "testing/FaultyStore.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

class TestEntry : public QObject {
  Q_OBJECT

 private slots:
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
