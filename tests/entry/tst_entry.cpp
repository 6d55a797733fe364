#include "entry/CommandLine.h"
#include "entry/SupportFolder.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

class TestEntry : public QObject {
  Q_OBJECT

 private slots:
  void dispatches() {
    const Cases<Mode> cases{{"t", ApplicationMode{}},
                            {"t --SELFTEST --selftest=1", ApplicationMode{}},
                            {"t --export-page a b --selftest", SelfTestMode{}},
                            {"t x --export-page a b c", PageExportMode{"a", "b"}},
                            {"t --export-page a", ApplicationMode{}},
                            {"t --export-page a --seed-logo", PageExportMode{"a", "--seed-logo"}},
                            {"t --seed-logo p --export-page a", LogoSeedingMode{"p"}},
                            {"t --seed-logo p --seed-logo q", LogoSeedingMode{"p"}},
                            {"t a --seed-logo", ApplicationMode{}}};
    cases.check(
        [&](const QString& line, const Mode& mode) { QVERIFY(modeOf(line.split(u' ')) == mode); });
  }

  void movesTheOldSupportFolderOnce() {
    TestServices disk;
    QVERIFY(writeFile(disk.path("Fenwright/Brands/x"), "kept"));
    for (int start = 0; start < 2; ++start) {
      SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
      QCOMPARE(contentOf(disk.path("Tarn Loft/Brands/x")), QByteArray("kept"));
      QVERIFY(!disk.files.exists(disk.path("Fenwright")));
    }
    QCOMPARE(disk.log.lines,
             QStringList("migrated support folder from “Fenwright” to “Tarn Loft”"));
  }

  void leavesFoldersAlone() {
    TestServices disk;
    SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
    QVERIFY(QDir(disk.folder.path()).isEmpty());
    QVERIFY(writeFile(disk.path("Fenwright/x"), "old"));
    QVERIFY(QDir().mkpath(disk.path("Tarn Loft")));
    SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
    QCOMPARE(contentOf(disk.path("Fenwright/x")), QByteArray("old"));
    QVERIFY(disk.log.lines.isEmpty());
  }

  void logsAFailedMove() {
    class Stuck : public PosixFileStore {
      Result<void> moveFolder(const QString&, const QString&) override {
        return failure(ErrorKind::io, "Permission denied");
      }
    };
    TestServices disk;
    Stuck files;
    QVERIFY(QDir().mkpath(disk.path("Fenwright")));
    SupportFolder::migrateIfNeeded(files, disk.log, disk.folder.path());
    QCOMPARE(disk.log.lines, QStringList("support folder migration failed: Permission denied"));
    QVERIFY(disk.files.exists(disk.path("Fenwright")));
  }
};

QTEST_APPLESS_MAIN(TestEntry)
#include "tst_entry.moc"
