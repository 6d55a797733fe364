#include "document/UndoHistory.h"
#include "testing/Cases.h"
#include "testing/TestLibrary.h"

#include <QTest>

#include <sys/stat.h>

using namespace tarnloft;

namespace {

QString nameOf(const LibraryStore& store) {
  return store.openDocument() ? store.openDocument()->brand().name : "(none)";
}

}  // namespace

class TestLibraryStore : public QObject {
  Q_OBJECT

 private slots:
  void listsByNameAndKeepsTheOrder() {
    TestLibrary library;
    for (const char* name : {"beta", "gamma", "Ärzte"}) library.add(name);
    Brand alpha = library.add("Alpha");
    library.start();
    QCOMPARE(library.names(), QStringList({"Alpha", "Ärzte", "beta", "gamma"}));
    QCOMPARE(library.store->selection(), library.packagePath("Alpha"));
    for (const char* name : {"Aardvark", "  blank ", "emoji 👩‍👩‍👧", "line\nbreak"})
      library.add(name);
    QVERIFY(writeFile(library.folder + "/notes.txt", "x"));
    library.store->scan();
    alpha.name = "Zulu";
    library.save("Alpha", alpha);
    library.start();
    QCOMPARE(library.names().first(4), QStringList({"Zulu", "Ärzte", "beta", "gamma"}));
    QCOMPARE(library.names().size(), 8);
  }

  void listsWhatItCannotRead() {
    TestLibrary library;
    library.add("Good");
    for (const QByteArray& bad :
         {QByteArray("{"), QByteArray(), QByteArray("\xEF\xBB\xBF{}"), QByteArray(100000, '[')}) {
      QVERIFY(writeFile(Package::manifestPath(library.packagePath("Bad")), bad));
      library.start();
      QCOMPARE(library.names().size(), 2);
      QVERIFY(library.names().contains("Bad"));
    }
    QVERIFY(QDir(library.folder).removeRecursively());
    QVERIFY(writeFile(library.folder, "a file where the folder belongs"));
    QVERIFY(library.start().brands().isEmpty());
  }

  void takesOverLegacyPackages() {
    TestLibrary library;
    library.add("Old");
    library.add("Both");
    QVERIFY(QDir(library.folder).rename("Old.tarnloft", "Old.yewstack"));
    QVERIFY(QDir(library.folder).mkdir("Both.yewstack"));
    library.start();
    QStringList names = library.names();
    names.sort();
    QCOMPARE(names, QStringList({"Both", "Both", "Old"}));
    QVERIFY(QFileInfo(library.packagePath("Old")).isDir());
    QVERIFY(QFileInfo(library.folder + "/Both.yewstack").isDir());
  }

  void changesTheFolder() {
    TestLibrary library;
    library.add("Here");
    library.start();
    const QString there = library.disk.path("there");
    QVERIFY(writeFile(Package::manifestPath(there + "/There.tarnloft"),
                      *encode(Brand::create("There"))));
    library.store->setLibraryURL(there);
    QCOMPARE(library.names(), QStringList("There"));
    QCOMPARE(library.store->selection(), there + "/There.tarnloft");
    QCOMPARE(library.start().libraryURL(), there);
  }

  void refusesWhatCannotBeALibrary() {
    const Cases<QString, QString> cases{
        {"a brand", "Tarn Loft/Library/Here.tarnloft", "is a brand"},
        {"in a brand", "x.tarnloft/assets", "is a brand"},
        {"a file", "file", "isn't a folder"},
        {"in a file", "file/below", "can't be made"},
        {"read-only", "/proc", "can't be written to"}};
    cases.check([&](const QString& name, const QString& reason) {
      TestLibrary library;
      library.add("Here");
      QVERIFY(writeFile(library.disk.path("file"), "x"));
      LibraryStore& store = library.start();
      QStringList told;
      connect(&store, &LibraryStore::libraryRefused, this,
              [&](const QString& why) { told << why; });
      store.setLibraryURL(name.startsWith('/') ? name : library.disk.path(name));
      QCOMPARE(told.size(), 1);
      QVERIFY2(told.first().contains(reason), qPrintable(told.first()));
      QCOMPARE(store.libraryURL(), library.folder);
      QVERIFY(store.openDocument());
      QCOMPARE(library.start().libraryURL(), library.folder);
    });
  }

  void preferencesOutliveTheProgram() {
    TestLibrary library;
    const auto preferences = [&]() -> LibraryPreferences& { return library.start().preferences(); };
    preferences().setDefaultAccentHexDark(QString("#222222"));
    preferences().setAppearanceMode(AppearanceMode::dark);
    preferences().setColorCopyFormat(ColorCopyFormat::cmyk);
    preferences().setLastExportQuality(0.4);
    QCOMPARE(preferences().defaultAccentHexDark(), "#222222");
    QCOMPARE(preferences().appearanceMode(), AppearanceMode::dark);
    QCOMPARE(preferences().colorCopyFormat(), ColorCopyFormat::cmyk);
    QCOMPARE(preferences().lastExportQuality(), 0.4);
    QCOMPARE(library.appearance.set.last(), AppearanceOverride::dark);
    for (const char* key : {"appearanceMode", "colorCopyFormat", "lastExportQuality"}) {
      library.preferences.setText(key, "nonsense");
    }
    QCOMPARE(preferences().appearanceMode(), AppearanceMode::system);
    QCOMPARE(preferences().colorCopyFormat(), ColorCopyFormat::hex);
    QCOMPARE(preferences().lastExportQuality(), 0.85);
  }

  // Each start but the last follows a crash.
  void aBrandThatEndedTheProgramIsntOpenedByItself() {
    TestLibrary library;
    library.openingFile = library.disk.path("state/opening");
    library.add("A");
    library.add("B");
    QVERIFY(library.start().openDocument());
    LibraryStore* store = &library.start();
    QVERIFY(!store->openDocument() && store->endedOpening());
    QCOMPARE(store->endedOpening()->name, "A");
    store->answerEndedOpening(LibraryStore::EndedOpening::open);
    QVERIFY(store->openDocument() && store->isPlain() && !store->endedOpening());
    store->endShowing({});
    store = &library.start();
    QVERIFY(!store->openDocument() && store->endedOpening());  // it hasn't stood as a whole
    store->answerEndedOpening(LibraryStore::EndedOpening::leave);
    QVERIFY(!store->openDocument() && !store->endedOpening());
    store->select(library.packagePath("B"));
    QVERIFY(store->openDocument() && !store->isPlain());
    store->select(library.packagePath("A"));
    QVERIFY(store->isPlain());
    store->showWholly();
    QVERIFY(!store->isPlain());
    store->endShowing({});
    QVERIFY(library.start().openDocument() && !library.store->isPlain());
  }

  void picksColors() {
    TestLibrary library;
    LibraryStore& store = library.start();
    store.pickColorFromScreen();
    QCOMPARE(library.beep.count, 1);
    library.add("A", {Section::create("Logos")});
    store.scan();
    store.select(library.packagePath("A"));
    UndoHistory history;
    store.setHostUndoManager(&history);
    store.pickColorFromScreen();
    library.pendingPick(SampledColor{1, 0.5, 0.2});
    store.openDocument()->edit([](Brand& brand) { brand.sections << Section::create("Palette"); });
    store.pickColorFromScreen();
    library.pendingPick(SampledColor{0, 0, 0});
    const QList<Section>& sections = store.openDocument()->brand().sections;
    QCOMPARE(sections.size(), 3);
    QCOMPARE(sections.at(1).name, "Colors");
    QCOMPARE(sections.at(1).items.size(), 2);
    QCOMPARE(std::get<ColorPayload>(sections.at(1).items.at(0).payload).value.hex, "#FF8033");
    QCOMPARE(history.undoActionName(), "Pick Color");
    store.pickColorFromScreen();
    store.select(std::nullopt);
    library.pendingPick(SampledColor{0, 0, 0});
    QCoreApplication::processEvents();
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

  void publishesAndSelects() {
    TestLibrary library;
    LibraryStore& store = library.start();
    for (const char* name : {"a", "b"}) store.createBrand(name);
    library.dialogs.answer = library.disk.path("a.html");
    store.exportBrandPage(store.brands().first());
    QCOMPARE(nameOf(store), "a");
    QCOMPARE(library.dialogs.suggested, "a Brand Page.html");
    QVERIFY(contentOf(library.disk.path("a.html")).contains("<h1>a</h1>"));
    library.dialogs.answer = library.disk.path("no/such/folder.html");
    store.exportBrandPage(store.brands().first());
    QCOMPARE(store.notices().size(), 1);
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

QTEST_GUILESS_MAIN(TestLibraryStore)
#include "tst_librarystore.moc"
