#include "testing/Cases.h"
#include "testing/FaultyStore.h"
#include "testing/TestLibrary.h"

#include <QTest>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace tarnloft;

using Operation = std::function<void(LibraryStore&)>;

namespace {

// A library with two brands, one of them with a picture and a version, and an archive to import.
struct Full {
  TestLibrary library;
  FaultyStore store;

  Full() {
    BrandDocument* const other = library.start().createBrand("Other");
    other->snapshotVersion(std::nullopt);
    BrandDocument* const acme = library.store->createBrand("Acme");
    QVERIFY(acme->importImageData("picture", "a.png", "png"));
    acme->snapshotVersion(std::nullopt);
    acme->saveNow();
    library.dialogs.answer = library.disk.path("a.zip");
    library.store->exportSelectedBrand();
    QVERIFY(QDir().mkpath(library.disk.path("tmp")));
    library.files = &store;
    library.start().select(library.packagePath("Acme"));
  }
};

// Every file of both brands but their manifests, and both manifests' sections.
QByteArrayList contentsOf(const QString& folder) {
  QByteArrayList contents;
  for (const QString& name : QDir(folder).entryList({"Acme*", "Other*"}, QDir::Dirs)) {
    const QString package = folder + '/' + name;
    const auto brand = decode<Brand>(contentOf(Package::manifestPath(package)));
    contents << (brand ? brand->id.toByteArray() : "unreadable");
    for (const QString& path : {Package::assetsPath(package), Package::versionsPath(package)}) {
      for (const QString& file : QDir(path).entryList(QDir::Files)) {
        contents << contentOf(path + '/' + file);
      }
    }
  }
  return contents;
}

}  // namespace

// Library folders that fail: full, read-only, unreadable, huge, changing under the program's hands.
class TestBadLibraries : public QObject {
  Q_OBJECT

 private slots:
  // At one step after the other; all that was there before is there afterwards.
  void aFullDiskOrACutHarmsNoBrand() {
    const Cases<Operation> cases{
        {"create", [](LibraryStore& store) { store.createBrand("New"); }},
        {"rename", [](LibraryStore& store) { store.renameSelectedBrand("Acme renamed"); }},
        {"duplicate",
         [](LibraryStore& store) { store.duplicateBrand(BrandSummary(store.brands()[0])); }},
        {"import", [](LibraryStore& store) { store.importBrand(); }},
        {"export", [](LibraryStore& store) { store.exportSelectedBrand(); }},
        {"page",
         [](LibraryStore& store) { store.exportBrandPage(BrandSummary(store.brands()[1])); }},
        {"version", [](LibraryStore& store) {
           BrandDocument& document = *store.openDocument();
           document.snapshotVersion(std::nullopt);
           document.restoreVersion(document.listVersions().last(), nullptr);
           document.saveNow();
         }}};
    cases.check([&](const Operation& operation) {
      for (const auto fault : {FaultyStore::Fault::failStep, FaultyStore::Fault::cutBehind}) {
        int step = 0;
        for (bool reached = true; reached;) {
          Full full;
          const QByteArrayList before = contentsOf(full.library.folder);
          full.store.steps = 0;
          full.store.atStep = ++step;
          full.store.fault = fault;
          operation(*full.library.store);
          reached = full.store.steps >= step;
          full.store.fault = FaultyStore::Fault::none;
          const QByteArrayList after = contentsOf(full.library.folder);
          for (const QByteArray& content : before) {
            QVERIFY2(after.contains(content), qPrintable(QString("step %1").arg(step)));
          }
          QVERIFY(!after.contains("unreadable"));
          QVERIFY(full.library.start().brands().size() >= 2);
        }
        QVERIFY(step > 1);
      }
    });
  }

  void aFolderThatNobodyMayReadOrWrite() {
    const Cases<int, int> cases{{"read-only", 0555, 1}, {"unreadable", 0333, 0}};
    cases.check([&](int rights, int rows) {
      if (::geteuid() == 0 && ::seteuid(65534) != 0) QSKIP("can't become another user");
      {
        TestLibrary library;
        library.add("Acme");
        QCOMPARE(::chmod(QFile::encodeName(library.folder).constData(), mode_t(rights)), 0);
        LibraryStore& store = library.start();
        QCOMPARE(int(store.brands().size()), rows);
        if (rights == 0555) QVERIFY(!store.createBrand("New"));
        store.renameSelectedBrand("Renamed");
        store.scan();
        QCOMPARE(int(store.brands().size()), rows);
        QVERIFY(decode<Brand>(contentOf(Package::manifestPath(library.packagePath("Acme")))));
        QCOMPARE(::chmod(QFile::encodeName(library.folder).constData(), 0755), 0);
      }
      if (::getuid() == 0) QCOMPARE(::seteuid(0), 0);
    });
  }
};

QTEST_GUILESS_MAIN(TestBadLibraries)
#include "tst_badlibraries.moc"
