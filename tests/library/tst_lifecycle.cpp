#include "testing/TestLibrary.h"

#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace tarnloft;

namespace {

QString nameOf(const LibraryStore& store) {
  return store.openDocument() ? store.openDocument()->brand().name : "(none)";
}

}  // namespace

class TestLifecycle : public QObject {
  Q_OBJECT

 private slots:
  void createsAndSelects() {
    TestLibrary library;
    LibraryStore& store = library.start();
    store.createBrand("Acme");
    BrandDocument* const second = store.createBrand("Acme");
    QCOMPARE(store.openDocument(), second);
    QCOMPARE(store.selection(), library.packagePath("Acme 2"));
    QCOMPARE(library.names(), QStringList({"Acme", "Acme"}));
    second->edit([](Brand& brand) { brand.accentHex = "#123456"; });
    second->saveNow();
    store.scan();
    QCOMPARE(store.brands().last().accentHex, "#123456");
  }

  void logsWhatCannotBeMade() {
    TestLibrary library;
    QVERIFY(writeFile(library.folder, "a file"));
    QVERIFY(!library.start().createBrand("Acme"));
    QCOMPARE(library.disk.log.lines, QStringList("failed to create brand: Not a directory"));
    library.store->duplicateBrand({library.packagePath("gone"), "gone", {}, {}, {}, QUuid()});
    QVERIFY(library.disk.log.lines.last().startsWith("failed to duplicate brand: "));
  }

  void renamesThePackageToo() {
    TestLibrary library;
    LibraryStore& store = library.start();
    store.renameSelectedBrand("Nothing open");
    store.createBrand("Acme");
    store.createBrand("Beta");
    store.renameSelectedBrand("Acme");
    QCOMPARE(store.selection(), library.packagePath("Acme 2"));
    QCOMPARE(nameOf(store), "Acme");
    QVERIFY(!QFile::exists(library.packagePath("Beta")));
    store.renameSelectedBrand("Acme");
    QCOMPARE(store.selection(), library.packagePath("Acme 3"));
    store.openDocument()->edit([](Brand& brand) { brand.name = "edited"; });
    store.openDocument()->saveNow();
    QCOMPARE(decode<Brand>(contentOf(Package::manifestPath(library.packagePath("Acme 3"))))->name,
             "edited");
  }

  void duplicatesWithAllThatIsInIt() {
    TestLibrary library;
    LibraryStore& store = library.start();
    BrandDocument* const document = store.createBrand("Acme");
    const auto asset = document->importImageData("bytes", "a.png", "png");
    document->snapshotVersion(QString("v1"));
    document->saveNow();
    store.scan();
    const BrandSummary row = store.brands().first();
    store.duplicateBrand(row);
    QCOMPARE(nameOf(store), "Acme Copy");
    QVERIFY(store.openDocument()->brand().id != row.brandID);
    QVERIFY(store.openDocument()->openAsset(*asset));
    QCOMPARE(store.openDocument()->listVersions().size(), 1);
    store.duplicateBrand(row);
    QCOMPARE(store.selection(), library.packagePath("Acme Copy 2"));
    QCOMPARE(nameOf(store), "Acme Copy");
    QCOMPARE(store.brands().size(), 3);
  }

  void deletesToTheTrash() {
    TestLibrary library;
    LibraryStore& store = library.start();
    for (const char* name : {"a", "b", "c"}) store.createBrand(name);
    store.openDocument()->edit([](Brand& brand) { brand.name = "pending"; });
    store.deleteBrand(store.brands().at(0));
    QCOMPARE(store.selection(), library.packagePath("c"));
    store.deleteBrand(store.brands().last());
    QCOMPARE(nameOf(store), "b");
    store.deleteBrand(store.brands().first());
    QVERIFY(!store.selection() && !store.openDocument());
    QTest::qWait(600);
    QVERIFY(QDir(library.folder).isEmpty());
    QCOMPARE(QDir(library.disk.path("trash")).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList({"a.tarnloft", "b.tarnloft", "c.tarnloft"}));
  }

  void publishesAndSelects() {
    TestLibrary library;
    LibraryStore& store = library.start();
    for (const char* name : {"a", "b"}) store.createBrand(name);
    library.dialogs.answer = library.disk.path("a.html");
    store.exportBrandPage(store.brands().first());
    QCOMPARE(nameOf(store), "a");
    QCOMPARE(library.dialogs.suggested, "a Brand Page.html");
    QVERIFY(contentOf(library.disk.path("a.html")).contains("<h1>a</h1>"));
    QCOMPARE(library.viewer.revealed, QStringList(library.disk.path("a.html")));
  }

  void copiesFoldersWhole() {
    TestServices disk;
    const QString source = disk.path("source"), copy = disk.path("copy");
    QVERIFY(writeFile(source + "/deep/.hidden", "x") && writeFile(source + "/empty", ""));
    QVERIFY(QFile::link("/etc/hostname", source + "/link"));
    QCOMPARE(::mkfifo(QFile::encodeName(source + "/pipe").constData(), 0600), 0);
    QCOMPARE(::chmod(QFile::encodeName(source + "/deep/.hidden").constData(), 0640), 0);
    QVERIFY(disk.files.copyFolder(source, copy));
    QCOMPARE(contentOf(copy + "/deep/.hidden"), "x");
    QCOMPARE(QFileInfo(copy + "/deep/.hidden").lastModified(),
             QFileInfo(source + "/deep/.hidden").lastModified());
    QVERIFY(QFileInfo(copy + "/link").isSymLink() && QFileInfo(copy + "/empty").isFile());
    QVERIFY(!disk.files.exists(copy + "/pipe"));
    QVERIFY(!disk.files.copyFolder(source, copy));
    QVERIFY(!disk.files.copyFolder(disk.path("missing"), disk.path("other")));
    QCOMPARE(namesIn(disk.folder.path()), QStringList({"copy", "source"}));
  }
};

QTEST_GUILESS_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
