#include "document/BrandDocument.h"
#include "document/Package.h"
#include "model/Json.h"
#include "testing/FaultyStore.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

// Saves that go wrong: each of the steps fails, or the power goes behind each of them.
class TestSaving : public QObject {
  Q_OBJECT

 private slots:
  void theStepsAreThoseWrittenDown();
  void aCutLeavesTheOldFileOrTheNewOne();
  void aFailedStepLeavesTheOldFileAndOneLine();
  void afterAFailedSyncOfTheFolderTheNewFileStands();
  void aManifestThatLeadsOutIsNeitherReadNorFollowed();
};

namespace {

constexpr int stepsOfASave = 6;  // folder, temporary, write, sync, replace, sync of the folder

struct Saving {
  TestServices disk;
  FaultyStore store;
  std::unique_ptr<BrandDocument> document;
  QString manifest;
  QByteArray before;

  Saving() {
    const DocumentServices services{store, disk.log, [this] { return disk.now; }};
    document = *BrandDocument::create(services, disk.folder.path(), QStringLiteral("Acme"));
    manifest = Package::manifestPath(document->packageURL());
    before = contentOf(manifest);
  }

  void save(FaultyStore::Fault fault, int atStep) {
    store.fault = fault;
    store.atStep = atStep;
    store.steps = 0;
    document->edit([](Brand& brand) { brand.name = QStringLiteral("Edited"); });
    document->saveNow();
  }
  QByteArray after() const { return *encode(document->brand()); }
  QStringList strays() const {
    return QDir(document->packageURL())
        .entryList({QStringLiteral(".*")}, QDir::Files | QDir::Hidden);
  }
};

}  // namespace

void TestSaving::theStepsAreThoseWrittenDown() {
  Saving saving;
  saving.save(FaultyStore::Fault::none, 0);
  QCOMPARE(saving.store.steps, stepsOfASave);
  QCOMPARE(contentOf(saving.manifest), saving.after());
  QVERIFY(saving.strays().isEmpty());
}

void TestSaving::aCutLeavesTheOldFileOrTheNewOne() {
  for (int step = 0; step <= stepsOfASave; ++step) {
    Saving saving;
    saving.save(FaultyStore::Fault::cutBehind, step);
    const bool replacedByThen = step >= stepsOfASave - 1;
    QCOMPARE(contentOf(saving.manifest), replacedByThen ? saving.after() : saving.before);
    QVERIFY(BrandDocument::load(saving.disk.services(), saving.document->packageURL()));
    QVERIFY(saving.strays().size() <= 1);
    for (const QString& stray : saving.strays())
      QVERIFY(stray.startsWith(QStringLiteral(".tarnloft-")));
  }
}

void TestSaving::aFailedStepLeavesTheOldFileAndOneLine() {
  for (int step = 1; step < stepsOfASave; ++step) {
    Saving saving;
    saving.save(FaultyStore::Fault::failStep, step);
    QCOMPARE(contentOf(saving.manifest), saving.before);
    QVERIFY(saving.strays().isEmpty());
    QCOMPARE(saving.disk.log.lines,
             QStringList(QStringLiteral("failed to save ") + saving.manifest +
                         QStringLiteral(": No space left on device")));
    QCOMPARE(saving.document->brand().name, QStringLiteral("Edited"));
    saving.store.fault = FaultyStore::Fault::none;
    saving.document->saveNow();
    QCOMPARE(contentOf(saving.manifest), saving.after());
  }
}

void TestSaving::afterAFailedSyncOfTheFolderTheNewFileStands() {
  Saving saving;
  saving.save(FaultyStore::Fault::failStep, stepsOfASave);
  QCOMPARE(contentOf(saving.manifest), saving.after());
  QCOMPARE(saving.disk.log.lines.size(), 1);
}

void TestSaving::aManifestThatLeadsOutIsNeitherReadNorFollowed() {
  Saving saving;
  const QString outside = saving.disk.path(QStringLiteral("outside.json"));
  QVERIFY(QFile::rename(saving.manifest, outside));
  QVERIFY(QFile::link(outside, saving.manifest));
  QVERIFY(!BrandDocument::load(saving.disk.services(), saving.document->packageURL()));
  saving.save(FaultyStore::Fault::none, 0);
  QCOMPARE(contentOf(outside), saving.before);
  QVERIFY(!QFileInfo(saving.manifest).isSymLink());
}

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"
