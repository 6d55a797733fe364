#include "document/UndoHistory.h"
#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/TestDocument.h"

#include <QTest>

using namespace tarnloft;
using namespace std::chrono_literals;

namespace {

struct Versioned : TestDocument {
  QString versions = Package::versionsPath(document->packageURL());
  QString manifest = Package::manifestPath(document->packageURL());

  void rename(const QString& name) {
    document->edit([&](Brand& brand) { brand.name = name; });
  }
  QStringList labels() const {
    QStringList result;
    for (const BrandVersion& version : document->listVersions()) {
      result << version.label.value_or("(none)");
    }
    return result;
  }
  QStringList fileNames() const { return QDir(versions).entryList(QDir::Files | QDir::Hidden); }
  // As a second machine's program does, through a document of its own.
  void saveElsewhere(const QString& name) {
    const auto other = BrandDocument::load(disk.services(), document->packageURL());
    other->edit([&](Brand& brand) { brand.name = name; });
    other->saveNow();
  }
};

}  // namespace

class TestVersions : public QObject {
  Q_OBJECT

 private slots:
  void listsTheThirtyNewestFirst() {
    Versioned brand;
    const int synced = brand.store.synced;
    for (const char* label : {"a", "b", "c"}) brand.document->snapshotVersion(QString(label));
    QCOMPARE(brand.store.synced, synced + 3);
    QCOMPARE(brand.labels(), QStringList({"c", "b", "a"}));
    QCOMPARE(brand.fileNames(),
             QStringList({"1772357460123-1.json", "1772357460123-2.json", "1772357460123.json"}));
    QCOMPARE(brand.document->listVersions().size(), 3);
    brand.disk.now += 5s;
    brand.document->snapshotVersion(std::nullopt);
    brand.disk.now -= 60s;
    brand.document->snapshotVersion(QString("  "));
    QCOMPARE(brand.labels().first(), "(none)");
    QCOMPARE(brand.labels().last(), "  ");
    brand.document->deleteVersion(brand.document->listVersions().first());
    QCOMPARE(brand.document->listVersions().size(), 4);
    brand.disk.now += 60s;
    for (int i = 0; i < 33; ++i) {
      brand.disk.now += 1s;
      brand.document->snapshotVersion(QString::number(i));
    }
    QCOMPARE(brand.fileNames().size(), 30);
    QCOMPARE(brand.labels().first(), "32");
    QCOMPARE(brand.labels().last(), "3");
  }

  void restoresInOneUndoStep() {
    Versioned brand;
    UndoHistory history;
    brand.rename("Original");
    brand.document->snapshotVersion(QString("v1"));
    const BrandVersion version = brand.document->listVersions().first();
    brand.rename("Edited");
    const Brand edited = brand.document->brand();
    brand.document->restoreVersion(version, &history);
    QCOMPARE(brand.document->brand().name, "Original");
    QCOMPARE(history.undoActionName(), "Restore Version");
    history.undo();
    QVERIFY(brand.document->brand() == edited);
    brand.document->restoreVersion({brand.versions + "/missing.json", {}, {}}, &history);
    QVERIFY(brand.document->brand() == edited);
  }

  void snapshotsByItselfOnceADay() {
    Versioned brand;
    brand.document->maybeAutoSnapshot();
    brand.document->maybeAutoSnapshot();
    QCOMPARE(brand.labels(), QStringList("Initial"));
    brand.disk.now += 24h - 2s;
    brand.document->maybeAutoSnapshot();
    QCOMPARE(brand.labels().size(), 1);
    brand.disk.now += 3s;
    brand.document->maybeAutoSnapshot();
    QCOMPARE(brand.labels(), QStringList({"Daily", "Initial"}));
    brand.disk.now += 23h;
    brand.document->snapshotVersion(QString("mine"));
    brand.disk.now += 23h;
    brand.document->maybeAutoSnapshot();
    QCOMPARE(brand.labels().size(), 3);
  }

  void leavesDamagedFilesAlone() {
    Versioned brand;
    brand.document->snapshotVersion(QString("good"));
    QVERIFY(writeFile(brand.versions + "/1.json", "{"));
    QVERIFY(writeFile(brand.versions + "/notes.txt", "x"));
    QVERIFY(QDir().mkpath(brand.versions + "/2.json"));
    QCOMPARE(brand.labels(), QStringList("good"));
    QVERIFY(brand.fileNames().contains("1.json"));
  }

  void writesNothingWhenDeadOrLedOut() {
    Versioned brand;
    const QString outside = brand.disk.path("outside");
    QVERIFY(writeFile(outside + "/1.json", "{}") && QFile::link(outside, brand.versions));
    brand.document->snapshotVersion(QString("out"));
    brand.document->deleteVersion({brand.versions + "/1.json", {}, {}});
    QCOMPARE(QDir(outside).entryList(QDir::Files | QDir::Hidden), QStringList("1.json"));
    QVERIFY(QFile::remove(brand.versions));
    brand.document->invalidate();
    brand.document->snapshotVersion(QString("dead"));
    QVERIFY(!QFile::exists(brand.versions));
  }

  void keepsWhatAnotherMachineSavedOnce() {
    Versioned brand;
    const QByteArray content = contentOf(brand.manifest);
    QVERIFY(QFile::remove(brand.manifest) && writeFile(brand.manifest, content));
    brand.rename("Ours");
    brand.document->saveNow();
    QVERIFY(brand.document->listVersions().isEmpty());  // the same content counts as our own
    for (int i = 0; i < 3; ++i) {
      brand.disk.now += 1s;
      brand.saveElsewhere("Theirs");
      brand.document->saveNow();
      QCOMPARE(decode<Brand>(contentOf(brand.manifest))->name, "Ours");
      QCOMPARE(brand.labels(), QStringList("Synced copy"));
    }
    brand.document->restoreVersion(brand.document->listVersions().first(), nullptr);
    QCOMPARE(brand.document->brand().name, "Theirs");
  }

  void doesNotReplaceWhatItCannotKeep() {
    const Cases<int, QStringList> cases{
        {"the version's bytes", 4, QStringList()},
        {"the manifest's sync, behind the version's six steps", 9, QStringList("Synced copy")}};
    cases.check([&](int failingStep, const QStringList& kept) {
      Versioned brand;
      brand.saveElsewhere("Theirs");
      const QByteArray theirs = contentOf(brand.manifest);
      brand.rename("Ours");
      brand.store.fault = FaultyStore::Fault::failStep;
      brand.store.steps = 0;
      brand.store.atStep = failingStep;
      brand.document->saveNow();
      QCOMPARE(contentOf(brand.manifest), theirs);
      QCOMPARE(brand.disk.log.lines.size(), 1);
      QCOMPARE(brand.labels(), kept);
      brand.store.fault = FaultyStore::Fault::none;
      brand.document->saveNow();
      QCOMPARE(decode<Brand>(contentOf(brand.manifest))->name, "Ours");
      QCOMPARE(brand.labels(), QStringList("Synced copy"));
    });
  }

  void keepsAForeignManifestThatDoesNotRead() {
    Versioned brand;
    QVERIFY(writeFile(brand.manifest, "{ half of a manif"));
    brand.document->saveNow();
    QVERIFY(decode<Brand>(contentOf(brand.manifest)));
    QCOMPARE(brand.fileNames(), QStringList("1772357460123.unreadable"));
    QCOMPARE(contentOf(brand.versions + "/1772357460123.unreadable"), "{ half of a manif");
    QVERIFY(brand.document->listVersions().isEmpty());
  }

  void doesNotReplaceWhatItCannotOpen() {
    const Cases<bool> cases{{"too large", true}, {"reading fails", false}};
    cases.check([&](bool isTooLarge) {
      Versioned brand;
      brand.saveElsewhere("Theirs");
      if (isTooLarge) QVERIFY(QFile::resize(brand.manifest, Package::largestJson + 1));
      const auto identity = brand.disk.files.identity(brand.manifest);
      if (!isTooLarge) brand.store.fault = FaultyStore::Fault::failReads;
      brand.rename("Ours");
      brand.document->saveNow();
      QVERIFY(*brand.disk.files.identity(brand.manifest) == *identity);
      QCOMPARE(brand.disk.log.lines.size(), 1);
      QVERIFY(brand.document->hasUnsavedChanges());
    });
  }

  void countsSyncedCopiesApart() {
    Versioned brand;
    brand.document->snapshotVersion(QString("Approved by client"));
    for (int i = 0; i < 31; ++i) {
      brand.disk.now += 1s;
      brand.saveElsewhere(QString("Theirs %1").arg(i));
      brand.rename(QString("Ours %1").arg(i));
      brand.document->saveNow();
    }
    QCOMPARE(brand.labels().count("Synced copy"), 30);
    QCOMPARE(brand.labels().last(), "Approved by client");
  }

  // Another machine's clock may be ahead.
  void whatWasJustKeptStays() {
    Versioned brand;
    brand.disk.now += 24h;
    for (int i = 0; i < 30; ++i) {
      brand.disk.now += 1s;
      brand.saveElsewhere(QString("Theirs %1").arg(i));
      brand.rename("Ours");
      brand.document->saveNow();
    }
    brand.disk.now -= 48h;
    brand.saveElsewhere("The newest of theirs");
    brand.rename("Ours");
    brand.document->saveNow();
    const auto versions = brand.document->listVersions();
    QCOMPARE(versions.size(), 30);
    QCOMPARE(PackageVersions(brand.store, brand.document->packageURL())
                 .read(versions.last().url)
                 ->brand.name,
             "The newest of theirs");
  }
};

QTEST_GUILESS_MAIN(TestVersions)
#include "tst_versions.moc"
