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
