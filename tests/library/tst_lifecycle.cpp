#include "platform/desktop/FreedesktopTrash.h"
#include "testing/TestLibrary.h"

#include <QProcess>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace tarnloft;

class TestLifecycle : public QObject {
  Q_OBJECT

 private slots:
  void createsAndSelects();
  void logsWhatCannotBeMade();
  void renamesThePackageToo();
  void aNameTooLongForAFolderIsShortened();
  void duplicatesWithAllThatIsInIt();
  void deletesToTheTrash();
  void aFailedTrashKeepsThePackage();
  void publishesAndSelects();
  void copiesFoldersWhole();
  void throwsIntoTheRealTrash_data();
  void throwsIntoTheRealTrash();
};

namespace {

QString nameOf(const LibraryStore& store) {
  return store.openDocument() ? store.openDocument()->brand().name : "(none)";
}

// Asks another program.
bool isInTrash(const QString& path) {
  QProcess list;
  list.start("trash-list", {});
  list.waitForFinished();
  return QString::fromUtf8(list.readAllStandardOutput()).contains(' ' + path + '\n');
}

}  // namespace

void TestLifecycle::createsAndSelects() {
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

void TestLifecycle::logsWhatCannotBeMade() {
  TestLibrary library;
  QVERIFY(writeFile(library.folder, "a file"));
  QVERIFY(!library.start().createBrand("Acme"));
  QCOMPARE(library.disk.log.lines, QStringList("failed to create brand: Not a directory"));
  library.store->duplicateBrand({library.packagePath("gone"), "gone", {}, {}, {}, QUuid()});
  QVERIFY(library.disk.log.lines.last().startsWith("failed to duplicate brand: "));
}

void TestLifecycle::renamesThePackageToo() {
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

void TestLifecycle::aNameTooLongForAFolderIsShortened() {
  TestLibrary library;
  LibraryStore& store = library.start();
  store.createBrand("Acme");
  store.renameSelectedBrand(QString(300, 'x'));  // longer than a file's name can be
  QCOMPARE(nameOf(store), QString(300, 'x'));
  QCOMPARE(library.names(), QStringList(QString(300, 'x')));
  QVERIFY(!QFile::exists(library.packagePath("Acme")));
  QVERIFY(store.openDocument()->packageURL().startsWith(library.folder + "/xxx"));
}

void TestLifecycle::duplicatesWithAllThatIsInIt() {
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

void TestLifecycle::deletesToTheTrash() {
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

void TestLifecycle::aFailedTrashKeepsThePackage() {
  TestLibrary library;
  LibraryStore& store = library.start();
  store.createBrand("a");
  store.createBrand("b");
  library.trash.works = false;
  store.deleteBrand(store.brands().last());
  QCOMPARE(library.names(), QStringList({"a", "b"}));
  QCOMPARE(nameOf(store), "b");
}

void TestLifecycle::publishesAndSelects() {
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

void TestLifecycle::copiesFoldersWhole() {
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
  QCOMPARE(
      QDir(disk.folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
      QStringList({"copy", "source"}));
}

void TestLifecycle::throwsIntoTheRealTrash_data() {
  QTest::addColumn<QString>("folder");
  QTest::newRow("the user's file system") << QDir::tempPath();
  QTest::newRow("another file system") << "/dev/shm";
}

void TestLifecycle::throwsIntoTheRealTrash() {
  QFETCH(QString, folder);
  const QTemporaryDir home, place(folder + "/tst_lifecycle-XXXXXX");
  qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath("share")));
  const QString package = place.filePath(QStringLiteral("Acmé 北.tarnloft"));
  QVERIFY(writeFile(package + "/manifest.json", "x"));
  FreedesktopTrash trash;
  QVERIFY(trash.moveToTrash(package));
  QVERIFY(!QFile::exists(package));
  QVERIFY(isInTrash(package));
  QVERIFY(!trash.moveToTrash(place.filePath("missing")));
  QProcess restore;
  restore.start("trash-restore", {package});
  restore.write("0\n");
  restore.closeWriteChannel();
  QVERIFY(restore.waitForFinished());
  QCOMPARE(contentOf(package + "/manifest.json"), "x");
  QVERIFY(!isInTrash(package));
}

QTEST_GUILESS_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
