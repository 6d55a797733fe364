#include "entry/CommandLine.h"
#include "entry/SupportFolder.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

class TestEntry : public QObject {
  Q_OBJECT

 private slots:
  void dispatches_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<Mode>("mode");
    const auto row = [](const char* line, const Mode& mode) {
      QTest::newRow(line) << QString::fromUtf8(line) << mode;
    };
    row("t", ApplicationMode{});
    row("t --SELFTEST --selftest=1", ApplicationMode{});
    row("t --export-page a b --selftest", SelfTestMode{});
    row("t x --export-page a b c", PageExportMode{QStringLiteral("a"), QStringLiteral("b")});
    row("t --export-page a", ApplicationMode{});
    row("t --export-page a --seed-logo",
        PageExportMode{QStringLiteral("a"), QStringLiteral("--seed-logo")});
    row("t --seed-logo p --export-page a", LogoSeedingMode{QStringLiteral("p")});
    row("t --seed-logo p --seed-logo q", LogoSeedingMode{QStringLiteral("p")});
    row("t a --seed-logo", ApplicationMode{});
  }

  void dispatches() {
    QFETCH(QString, line);
    QFETCH(Mode, mode);
    QVERIFY(modeOf(line.split(u' ')) == mode);
  }

  void movesTheOldSupportFolderOnce() {
    TestServices disk;
    QVERIFY(writeFile(disk.path(QStringLiteral("Fenwright/Brands/x")), "kept"));
    for (int start = 0; start < 2; ++start) {
      SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
      QCOMPARE(contentOf(disk.path(QStringLiteral("Tarn Loft/Brands/x"))), QByteArray("kept"));
      QVERIFY(!disk.files.exists(disk.path(QStringLiteral("Fenwright"))));
    }
    QCOMPARE(
        disk.log.lines,
        QStringList(QStringLiteral("migrated support folder from “Fenwright” to “Tarn Loft”")));
  }

  void leavesFoldersAlone() {
    TestServices disk;
    SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
    QVERIFY(QDir(disk.folder.path()).isEmpty());
    QVERIFY(writeFile(disk.path(QStringLiteral("Fenwright/x")), "old"));
    QVERIFY(QDir().mkpath(disk.path(QStringLiteral("Tarn Loft"))));
    SupportFolder::migrateIfNeeded(disk.files, disk.log, disk.folder.path());
    QCOMPARE(contentOf(disk.path(QStringLiteral("Fenwright/x"))), QByteArray("old"));
    QVERIFY(disk.log.lines.isEmpty());
  }

  void logsAFailedMove() {
    class Stuck : public PosixFileStore {
      Result<void> moveFolder(const QString&, const QString&) override {
        return failure(ErrorKind::io, QStringLiteral("Permission denied"));
      }
    };
    TestServices disk;
    Stuck files;
    QVERIFY(QDir().mkpath(disk.path(QStringLiteral("Fenwright"))));
    SupportFolder::migrateIfNeeded(files, disk.log, disk.folder.path());
    QCOMPARE(disk.log.lines,
             QStringList(QStringLiteral("support folder migration failed: Permission denied")));
    QVERIFY(disk.files.exists(disk.path(QStringLiteral("Fenwright"))));
  }
};

QTEST_APPLESS_MAIN(TestEntry)

#include "tst_entry.moc"
