#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/TestDocument.h"

#include <QTest>

#include <utility>

using namespace tarnloft;

namespace {

constexpr int exchangeStep = 4;  // behind temporary, write and sync
constexpr int stepsOfASave = 6;  // then the removal of the old file and the sync of the folder

struct Saving : TestDocument {
  QString manifest = Package::manifestPath(document->packageURL());
  QByteArray before = contentOf(manifest);

  void save(FaultyStore::Fault fault, int atStep) {
    store.fault = fault;
    store.atStep = atStep;
    store.steps = 0;
    document->edit([](Brand& brand) { brand.name = "Edited"; });
    document->saveNow();
  }
  QByteArray after() const { return *encode(document->brand()); }
  QStringList strays() const {
    return QDir(document->packageURL()).entryList({".*"}, QDir::Files | QDir::Hidden);
  }
};

// The real disk, on which another machine does something at chosen moments of a save.
class SharedStore : public PosixFileStore {
 public:
  std::function<void()> beforeExchange = [] {};
  std::function<void()> afterExchange = [] {};

  Result<Replaced> exchange(FileWriter& temporary, const QString& target) override {
    std::exchange(beforeExchange, [] {})();
    auto replaced = PosixFileStore::exchange(temporary, target);
    std::exchange(afterExchange, [] {})();
    return replaced;
  }
};

}  // namespace

// Saves that go wrong: each of the steps fails, or the power goes behind each of them.
class TestSaving : public QObject {
  Q_OBJECT

 private slots:
  void theStepsAreThoseWrittenDown() {
    Saving saving;
    saving.save(FaultyStore::Fault::none, 0);
    QCOMPARE(saving.store.steps, stepsOfASave);
    QCOMPARE(contentOf(saving.manifest), saving.after());
    QVERIFY(saving.strays().isEmpty());
  }

  void aCutLeavesTheOldFileOrTheNewOne() {
    for (int step = 0; step <= stepsOfASave; ++step) {
      Saving saving;
      saving.save(FaultyStore::Fault::cutBehind, step);
      const bool replacedByThen = step >= exchangeStep;
      QCOMPARE(contentOf(saving.manifest), replacedByThen ? saving.after() : saving.before);
      QVERIFY(BrandDocument::load(saving.disk.services(), saving.document->packageURL()));
      QVERIFY(saving.strays().size() <= 1);
      for (const QString& stray : saving.strays()) QVERIFY(stray.startsWith(".tarnloft-"));
    }
  }

  void aFailedStepLeavesTheOldFileAndOneLine() {
    for (int step = 1; step <= exchangeStep; ++step) {
      Saving saving;
      saving.save(FaultyStore::Fault::failStep, step);
      QCOMPARE(contentOf(saving.manifest), saving.before);
      QVERIFY(saving.strays().isEmpty());
      QCOMPARE(saving.disk.log.lines,
               QStringList("failed to save " + saving.manifest + ": No space left on device"));
      QCOMPARE(saving.document->brand().name, "Edited");
      QCOMPARE(saving.document->saveProblem(), "No space left on device");
      QVERIFY(saving.document->hasUnsavedChanges());
      saving.store.fault = FaultyStore::Fault::none;
      saving.document->saveNow();
      QCOMPARE(contentOf(saving.manifest), saving.after());
      QVERIFY(saving.document->saveProblem().isEmpty() && !saving.document->hasUnsavedChanges());
    }
  }

  void afterAFailedSyncOfTheFolderTheNewFileStands() {
    Saving saving;
    saving.save(FaultyStore::Fault::failStep, stepsOfASave);
    QCOMPARE(contentOf(saving.manifest), saving.after());
    QCOMPARE(saving.disk.log.lines.size(), 1);
  }

  void aManifestThatLeadsOutIsNeitherReadNorFollowed() {
    Saving saving;
    const QString outside = saving.disk.path("outside.json");
    QVERIFY(QFile::rename(saving.manifest, outside));
    QVERIFY(QFile::link(outside, saving.manifest));
    QVERIFY(!BrandDocument::load(saving.disk.services(), saving.document->packageURL()));
    saving.save(FaultyStore::Fault::none, 0);
    QCOMPARE(contentOf(outside), saving.before);
    QVERIFY(!QFileInfo(saving.manifest).isSymLink());
  }

  void anotherMachinesManifestOfAnyMomentIsKept() {
    const Cases<bool, bool> cases{{"between the comparison and the exchange", false, false},
                                  {"right behind the exchange", true, false},
                                  {"while no version can be written", false, true}};
    cases.check([&](bool isBehind, bool isBlocked) {
      TestServices disk;
      SharedStore store;
      const DocumentServices services{store, disk.log, [&] { return disk.now; }};
      const auto document = *BrandDocument::create(services, disk.folder.path(), "Acme");
      const QString manifest = Package::manifestPath(document->packageURL());
      const QString versionsPath = Package::versionsPath(document->packageURL());
      if (isBlocked) QVERIFY(writeFile(versionsPath, "no folder"));
      const auto arrive = [&] {
        Brand theirs = document->brand();
        theirs.name = "Theirs";
        QVERIFY(writeFile(manifest + ".new", *encode(theirs)));
        QVERIFY(QFile::remove(manifest) && QFile::rename(manifest + ".new", manifest));
      };
      (isBehind ? store.afterExchange : store.beforeExchange) = arrive;
      for (const char* name : {"Ours", "Ours again"}) {
        document->edit([&](Brand& brand) { brand.name = name; });
        document->saveNow();
        if (!QFileInfo(versionsPath).isFile()) continue;
        QCOMPARE(decode<Brand>(contentOf(manifest))->name, "Theirs");
        QVERIFY(document->hasUnsavedChanges() && QFile::remove(versionsPath));
      }
      const auto versions = document->listVersions();
      QCOMPARE(versions.size(), 1);
      QCOMPARE(
          PackageVersions(store, document->packageURL()).read(versions.first().url)->brand.name,
          "Theirs");
      QCOMPARE(decode<Brand>(contentOf(manifest))->name, "Ours again");
    });
  }

  void whatAKilledSaveDisplacedIsKept() {
    Saving saving;
    const QString package = saving.document->packageURL();
    Brand theirs = saving.document->brand();
    theirs.updatedAt += std::chrono::hours(1);
    QVERIFY(writeFile(package + "/.tarnloft-1", *encode(theirs)));  // nothing that we don't have
    theirs.name = "Theirs";
    QVERIFY(writeFile(package + "/.tarnloft-2", *encode(theirs)));
    QVERIFY(writeFile(package + "/.tarnloft-3", encode(theirs)->chopped(9)));
    QVERIFY(writeFile(package + "/.tarnloft-4", *encode(Brand::create("Another"))));
    for (int start = 0; start < 2; ++start) {
      BrandDocument::load(saving.disk.services(), package)->sweep();
      const auto versions = PackageVersions(saving.store, package).list();
      QCOMPARE(versions.size(), 1);
      const auto kept = PackageVersions(saving.store, package).read(versions.first().url);
      QCOMPARE(kept->brand, asWritten(theirs));
    }
  }
};

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"
