#include "document/AtomicWrite.h"
#include "platform/desktop/archives/ZipArchiver.h"
#include "publish/BrandPageExporter.h"
#include "testing/Cases.h"
#include "testing/ForeignZip.h"
#include "testing/TestLibrary.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>

using namespace tarnloft;

namespace {

bool runs(const QString& program, const QStringList& arguments, const QString& folder) {
  QProcess process;
  process.setWorkingDirectory(folder);
  process.start(program, arguments);
  process.waitForFinished();
  if (process.exitCode() != 0) qWarning() << process.readAllStandardError();
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

QByteArray manifest(const QString& name) { return *encode(Brand::create(name)); }

// A library with an archive to import, and a look at all that may come of it.
struct Import {
  TestLibrary library;
  QString archive = library.disk.path("foreign.zip");
  QString outside = library.disk.path("outside");

  Import() {
    library.start();
    QDir().mkpath(outside);
    QDir().mkpath(library.disk.path("tmp"));
  }
  LibraryStore& run() {
    library.dialogs.answer = archive;
    library.store->importBrand();
    return *library.store;
  }
  bool leavesNothing() const {
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    return QDir(library.disk.path("tmp")).entryList(all).isEmpty() &&
           QDir(outside).entryList(all).isEmpty() &&
           QDir(library.disk.folder.path()).entryList(all).size() <= 6;
  }
};

}  // namespace

class TestArchives : public QObject {
  Q_OBJECT

 private slots:
  void exportsWhatOtherToolsRead() {
    TestLibrary library;
    const QString archive = library.disk.path("a.zip");
    const QString package = library.packagePath("Acmé 北");
    QVERIFY(writeFile(archive, "an older file"));
    LibraryStore& store = library.start();
    BrandDocument* const document = store.createBrand("Acmé 北");
    // Over several pieces: what shrinks to nothing, to a half, and not at all; and nothing.
    QByteArray random(2'500'000, Qt::Uninitialized);
    QRandomGenerator(7).fillRange(reinterpret_cast<quint32*>(random.data()), random.size() / 4);
    for (const QByteArray& bytes :
         {QByteArray(3'000'000, 'p'), random.toHex(), random, QByteArray()})
      QVERIFY(document->importImageData(bytes, "a.png", "png"));
    document->saveNow();
    store.exportSelectedBrand();  // cancelled
    QVERIFY(library.viewer.revealed.isEmpty());
    library.dialogs.answer = archive;
    store.exportSelectedBrand();
    QCOMPARE(library.dialogs.suggested, "Acmé 北.tarnloft.zip");
    QCOMPARE(library.dialogs.mimeType, "application/zip");
    QCOMPARE(library.viewer.revealed, QStringList(archive));
    for (const QStringList& tool : {QStringList{"unzip", "-q"}, {"bsdtar", "-xf"}}) {
      const QString out = library.disk.path(tool.first());
      QVERIFY(QDir().mkpath(out) && runs(tool.first(), {tool.last(), "../a.zip"}, out));
      QCOMPARE(namesIn(out), QStringList(QFileInfo(package).fileName()));
      QVERIFY(runs("diff", {"-r", package, out + '/' + QFileInfo(package).fileName()}, out));
    }
    const qint64 size = QFileInfo(archive).size();
    QVERIFY(size > 2 * random.size() && size < 2.4 * random.size());
  }

  void whatIsCancelledLeavesNothing() {
    TestLibrary library;
    library.add("Acme");
    QVERIFY(writeFile(library.packagePath("Acme") + "/assets/a.png", "picture"));
    const QString package = library.packagePath("Acme"), archive = library.disk.path("a.zip");
    ZipArchiver archiver;
    Progress progress;
    const auto write = [&] {
      return writeAtomically(
          library.disk.files, archive, Durability::atomic,
          [&](FileWriter& file) { return archiver.archive(package, file, progress); });
    };
    QVERIFY(write());
    QCOMPARE(progress.share(), 1);
    progress.cancel();
    QVERIFY(QFile::rename(archive, archive + ".whole") && QDir().mkpath(library.disk.path("out")));
    const auto page =
        BrandPageExporter::writeFile(*BrandDocument::load(library.disk.services(), package),
                                     library.disk.files, archive, progress);
    for (const Result<void>& made :
         {write(), page,
          library.disk.files.copyFolder(package, library.disk.path("copy"), progress),
          archiver.extract(archive + ".whole", library.disk.path("out"), progress)}) {
      QVERIFY(!made && made.error().kind == ErrorKind::cancelled);
    }
    QVERIFY(!QFile::exists(archive) && !QFile::exists(library.disk.path("copy")));
  }

  void keepsTimesRightsAndLinks() {
    TestLibrary library;
    const QString archive = library.disk.path("a.zip");
    const Brand brand = library.add("Acme");
    const QString package = library.packagePath("Acme"), asset = package + "/assets/a.png";
    QVERIFY(writeFile(asset, "a") && writeFile(package + "/.hidden", ""));
    QVERIFY(QFile::link("a.png", package + "/assets/link"));
    QCOMPARE(::chmod(QFile::encodeName(asset).constData(), 0604), 0);
    const timespec times[] = {{1'000'000'000, 0}, {1'000'000'001, 0}};
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(asset).constData(), times, 0), 0);
    library.dialogs.answer = archive;
    library.start().exportSelectedBrand();
    library.store->importBrand();
    const QString copy = library.packagePath("Acme 2");
    QCOMPARE(library.store->selection(), copy);
    QVERIFY(library.store->openDocument()->brand().id != brand.id);
    struct stat info;
    QCOMPARE(::stat(QFile::encodeName(copy + "/assets/a.png").constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0604u);
    QCOMPARE(info.st_mtime, 1'000'000'001);
    QVERIFY(QFile::exists(copy + "/.hidden"));
    QCOMPARE(QFileInfo(copy + "/assets/link").symLinkTarget(), copy + "/assets/a.png");
  }

  // A package of the library's own is shown, by whichever way to its folder it was opened.
  void opensFiles() {
    TestLibrary library;
    library.add("Acme");
    const QString own = library.packagePath("Acme"), link = library.disk.path("link");
    const QString home = QFileInfo(own).path(), foreign = library.disk.path("Foreign.tarnloft");
    QVERIFY(QFile::link(home, link) && QDir().mkpath(foreign));
    QVERIFY(writeFile(foreign + "/brand.json", manifest("Foreign")));
    library.start();
    const Cases<QString, QString> cases{
        {"own", own, own},
        {"own by a link", link + "/Acme.tarnloft", own},
        {"foreign", foreign, library.packagePath("Foreign")},
    };
    cases.check([&](const QString& path, const QString& selected) {
      library.store->openFile(path);
      QCOMPARE(library.store->selection(), selected);
      QCOMPARE(QDir(home).entryList({"*.tarnloft"}).size(), selected == own ? 1 : 2);
    });
  }

  void readsWhatOtherToolsWrite() {
    const Cases<QString, QStringList> cases{
        {"zip", "zip", QStringList{"-qry", "foreign.zip", "Acmé.tarnloft"}},
        {"bsdtar", "bsdtar",
         QStringList{"--format", "zip", "-cf", "foreign.zip", "Acmé.tarnloft"}}};
    cases.check([&](const QString& program, const QStringList& arguments) {
      Import import;
      const QString root = import.library.disk.folder.path();
      QVERIFY(writeFile(root + "/Acmé.tarnloft/manifest.json", manifest("x")));
      QVERIFY(writeFile(root + "/Acmé.tarnloft/assets/a.png", "picture"));
      QVERIFY(runs(program, arguments, root));
      QVERIFY(QDir(root + "/Acmé.tarnloft").removeRecursively());
      LibraryStore& store = import.run();
      QCOMPARE(import.library.dialogs.openTypes, QStringList("application/zip"));
      QCOMPARE(store.selection(), import.library.packagePath("Acmé"));
      QCOMPARE(store.openDocument()->brand().name, "Acmé");
      QCOMPARE(contentOf(*store.selection() + "/assets/a.png"), "picture");
      QVERIFY(import.leavesNothing());
    });
  }

  void importsFolders() {
    for (const char* name : {"Acme.tarnloft", "Acme.yewstack"}) {
      Import import;
      import.archive = import.outside + '/' + name;
      QVERIFY(writeFile(import.archive + "/manifest.json", manifest("Other")));
      LibraryStore& store = import.run();
      QCOMPARE(store.selection(), import.library.packagePath("Acme"));
      QCOMPARE(store.openDocument()->brand().name, "Acme");
      QVERIFY(QFile::exists(import.archive + "/manifest.json"));
    }
  }

  void refuses() {
    const Cases<QStringList> cases{
        {"no package", {"Acme/manifest.json"}},
        {"only a foreign second tree", {"__MACOSX/Acme.tarnloft/._manifest.json"}},
        {"hidden package", {".Acme.tarnloft/manifest.json"}},
        {"steps upwards", {"Acme.tarnloft/manifest.json", "Acme.tarnloft/../../../outside/x"}},
        {"absolute path", {"/tmp/Acme.tarnloft/manifest.json"}},
        {"backslashes", {"a/..\\..\\outside\\x.tarnloft"}},
        {"absolute link", {"Acme.tarnloft/", "Acme.tarnloft/a -> /etc"}},
        {"link out", {"Acme.tarnloft/", "Acme.tarnloft/a -> ../../../outside"}},
        {"link to beside the package", {"Acme.tarnloft/", "Acme.tarnloft/a -> ../x"}},
        {"link as the package", {"Acme.tarnloft -> ."}},
        {"link through a link",
         {"Acme.tarnloft/x/y/", "Acme.tarnloft/x/y/up -> ../..",
          "Acme.tarnloft/out -> x/y/up/../../outside"}},
        {"file through a link",
         {"Acme.tarnloft/in/", "Acme.tarnloft/a -> in", "Acme.tarnloft/a/x"}},
        {"twice", {"Acme.tarnloft/manifest.json", "Acme.tarnloft/./manifest.json"}}};
    cases.check([](const QStringList& entries) {
      Import import;
      ForeignZip(import.archive).add(entries, manifest("x"));
      LibraryStore& store = import.run();
      QVERIFY(store.brands().isEmpty() && !store.selection());
      QVERIFY(import.leavesNothing());
      QVERIFY(QDir(import.library.folder).isEmpty());
    });
  }

  void findsThePackage() {
    const Cases<QStringList, QString> cases{
        {"with clutter of another system",
         {"__MACOSX/A.tarnloft/._manifest.json", "B.tarnloft/manifest.json",
          "B.tarnloft/.DS_Store"},
         "B"},
        {"the first of two", {"B.tarnloft/manifest.json", "A.tarnloft/manifest.json"}, "A"},
        {"a package within a package",
         {"A.tarnloft/0.tarnloft/manifest.json", "A.tarnloft/manifest.json"},
         "A"},
        {"names of an old code page", {"Müller.tarnloft/manifest.json"}, "Müller"}};
    cases.check([](const QStringList& entries, const QString& name) {
      Import import;
      ForeignZip(import.archive, "zip:hdrcharset=CP437").add(entries, manifest("x"));
      LibraryStore& store = import.run();
      QCOMPARE(import.library.names(), QStringList(name));
      QVERIFY(store.openDocument());
      QVERIFY(!QFile::exists(*store.selection() + "/.DS_Store"));
      QVERIFY(import.leavesNothing());
    });
  }

  void refusesABomb() {
    const Cases<UnpackLimits, bool> cases{{"within bounds", UnpackLimits{3'000'000, 0, 12}, true},
                                          {"too large", UnpackLimits{1'900'000, 0, 12}, false},
                                          {"too many", UnpackLimits{3'000'000, 0, 11}, false},
                                          {"packed too well", UnpackLimits{0, 10, 12}, false}};
    cases.check([&](const UnpackLimits& limits, bool imports) {
      Import import;
      {
        ForeignZip zip(import.archive);
        zip.file("A.tarnloft/manifest.json", manifest("x"))
            .file("A.tarnloft/big", QByteArray(2'000'000, 0));
        for (int i = 0; i < 10; ++i) zip.file(qPrintable(QString("A.tarnloft/%1").arg(i)), "");
      }
      ZipArchiver archiver(limits);
      QVERIFY(QDir().mkpath(import.library.disk.path("out")));
      Progress progress;
      QCOMPARE(
          archiver.extract(import.archive, import.library.disk.path("out"), progress).has_value(),
          imports);
    });
  }

  void unpacksForItsUser() {
    Import import;
    {
      ForeignZip zip(import.archive);
      zip.folder("A.tarnloft/", 0).file("A.tarnloft/a.png", "x", 0040);
    }
    const QString out = import.library.disk.path("out");
    Progress progress;
    QVERIFY(QDir().mkpath(out) && ZipArchiver().extract(import.archive, out, progress));
    struct stat info;
    QCOMPARE(::stat(QFile::encodeName(out + "/A.tarnloft/a.png").constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0640u);
    QCOMPARE(::stat(QFile::encodeName(out + "/A.tarnloft").constData(), &info), 0);
    QCOMPARE(info.st_mode & 07777, 0700u);
  }

  void refusesACutArchive() {
    Import import;
    {
      ForeignZip zip(import.archive, "zip:encryption=zipcrypt");
      zip.file("A.tarnloft/manifest.json", manifest("x"));
    }
    QVERIFY(contentOf(import.archive).contains("manifest.json"));
    QVERIFY(import.run().brands().isEmpty() && import.leavesNothing());  // encrypted
    {
      ForeignZip zip(import.archive);
      zip.file("A.tarnloft/manifest.json", manifest("x"))
          .file("A.tarnloft/a", QByteArray(999, 'a'));
    }
    const QByteArray whole = contentOf(import.archive);
    for (qsizetype length = 0; length < whole.size(); length += 7) {
      QVERIFY(writeFile(import.archive, whole.left(length)));
      import.run();
      // Cut within the directory at its end, an archive still holds all of its files.
      if (length < whole.indexOf("PK\x01\x02")) QVERIFY(import.library.store->brands().isEmpty());
      QVERIFY(import.leavesNothing());
    }
  }

  void aPackageThatVanishedLeavesNoArchive() {
    TestLibrary library;
    library.add("Acme");
    library.start();
    library.dialogs.answer = library.disk.path("a.zip");
    const BrandSummary row = library.store->brands().first();
    QVERIFY(QDir(library.packagePath("Acme")).removeRecursively());
    library.store->exportBrand(row);
    QVERIFY(!QFile::exists(library.disk.path("a.zip")));
  }
};

QTEST_GUILESS_MAIN(TestArchives)
#include "tst_archives.moc"
