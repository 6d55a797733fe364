#include "document/UndoHistory.h"
#include "model/Uuid.h"
#include "testing/Cases.h"
#include "testing/TestLibrary.h"

#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

// All that the preferences in a store tell.
QString told(Preferences& store) {
  const LibraryPreferences preferences(store);
  const auto text = [](std::string_view raw) {
    return QString::fromLatin1(raw.data(), qsizetype(raw.size()));
  };
  const QStringList words{preferences.defaultAccentHex(),
                          preferences.defaultAccentHexDark().value_or("-"),
                          text(rawValue(preferences.appearanceMode())),
                          text(rawValue(preferences.tileSize())),
                          text(rawValue(preferences.colorCopyFormat())),
                          text(rawValue(preferences.assetDisplayMode())),
                          text(rawValue(preferences.lastExportFormat())),
                          QString::number(preferences.lastExportQuality())};
  return words.join(' ');
}

}  // namespace

class TestLibraryStore : public QObject {
  Q_OBJECT

 private slots:
  void aFirstStartMakesAnEmptyLibrary() {
    TestLibrary library;
    LibraryStore& store = library.start();
    QCOMPARE(store.libraryURL(), library.folder);
    QVERIFY(QFileInfo(library.folder).isDir());
    QVERIFY(store.brands().isEmpty() && !store.selection() && !store.openDocument());
    QCOMPARE(library.appearance.set, QList{AppearanceOverride::none});
  }

  void listsByNameAndKeepsTheOrder() {
    TestLibrary library;
    for (const char* name : {"beta", "Alpha", "gamma", "Ärzte"}) library.add(name);
    library.start();
    QCOMPARE(library.names(), QStringList({"Alpha", "Ärzte", "beta", "gamma"}));
    QStringList stored;
    for (const BrandSummary& row : library.store->brands()) stored << canonicalString(row.brandID);
    QCOMPARE(library.preferences.texts("brandOrder"), stored);
    QCOMPARE(library.store->selection(), library.packagePath("Alpha"));
  }

  void newRowsFollowTheOrderedOnes() {
    TestLibrary library;
    Brand beta = library.add("Beta");
    library.add("Gamma");
    library.start();
    library.add("Aardvark");
    library.store->scan();
    QCOMPARE(library.names(), QStringList({"Beta", "Gamma", "Aardvark"}));
    beta.name = "Zulu";
    library.save("Beta", beta);
    library.start();
    QCOMPARE(library.names(), QStringList({"Zulu", "Gamma", "Aardvark"}));
  }

  void movesRows() {
    const Cases<QString, QString, QString> cases{
        {"to the front", "c", "a", "cab"},  {"down", "a", "c", "bac"},
        {"to the end", "a", "", "bca"},     {"before an unknown one", "a", "?", "bca"},
        {"before itself", "b", "b", "abc"}, {"unknown", "?", "a", "abc"}};
    cases.check([&](const QString& moved, const QString& before, const QString& order) {
      TestLibrary library;
      for (const char* name : {"a", "b", "c"}) library.add(name);
      library.start();
      const auto id = [&](const QString& name) {
        for (const BrandSummary& row : library.store->brands()) {
          if (row.name == name) return row.brandID;
        }
        return QUuid::createUuid();
      };
      library.store->moveBrand(id(moved),
                               before.isEmpty() ? std::nullopt : std::optional(id(before)));
      QCOMPARE(library.names().join(QString()), order);
      library.start();
      QCOMPARE(library.names().join(QString()), order);
    });
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
    const auto idOfBad = [&] { return library.store->brands().last().brandID; };
    const QUuid first = idOfBad();
    library.store->scan();
    QVERIFY(idOfBad() != first);
  }

  void survivesOddFolders() {
    TestLibrary library;
    QVERIFY(writeFile(library.folder, "a file where the folder belongs"));
    QVERIFY(library.start().brands().isEmpty());
    QVERIFY(QFile::remove(library.folder));
    const QStringList names{"  blank ",   "名前", "עברית", "e\u0301", "emoji 👩‍👩‍👧",
                            "line\nbreak"};
    for (const QString& name : names) library.add(name);
    library.add("upper");
    QVERIFY(QDir(library.folder).rename("upper.tarnloft", "upper.TARNLOFT"));
    QVERIFY(writeFile(library.folder + "/notes.txt", "x"));
    library.start();
    QStringList listed = library.names(), expected = names;
    listed.sort();
    expected.sort();
    QCOMPARE(listed, expected);
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

  void selectionHasThreeStates() {
    TestLibrary library;
    library.add("Good");
    QVERIFY(QDir().mkpath(library.packagePath("Bad")));
    LibraryStore& store = library.start();
    store.select(library.packagePath("Good"));
    BrandDocument* const document = store.openDocument();
    QVERIFY(document && document->brand().name == "Good");
    store.select(library.packagePath("Good"));
    QCOMPARE(store.openDocument(), document);
    store.select(library.packagePath("Bad"));
    QVERIFY(store.selection() && !store.openDocument());
    store.select(std::nullopt);
    QVERIFY(!store.selection() && !store.openDocument());
  }

  void forwardsChangesOfTheOpenBrand() {
    TestLibrary library;
    library.add("A");
    library.add("B");
    LibraryStore& store = library.start();
    QSignalSpy changes(&store, &LibraryStore::brandChanged);
    store.openDocument()->edit([](Brand& brand) { brand.name = "x"; });
    QCOMPARE(changes.size(), 1);
    QPointer<BrandDocument> old = store.openDocument();
    store.select(library.packagePath("B"));
    QVERIFY(!old);
    store.openDocument()->edit([](Brand& brand) { brand.name = "y"; });
    QCOMPARE(changes.size(), 2);
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

  void readsPreferences() {
    const Cases<QByteArray, QString> cases{
        {"none", "", "#0A84FF - system medium hex compact png 0.85"},
        {"all",
         "[General]\ndefaultAccentHex=#123456\ndefaultAccentHexDark=#abc\nappearanceMode=dark\n"
         "tileSize=large\ncolorCopyFormat=hexLower\nassetDisplayMode=expanded\n"
         "lastExportFormat=heic\nlastExportQuality=0.5\n",
         "#123456 #abc dark large hexLower expanded heic 0.5"},
        {"nonsense",
         "[General]\nappearanceMode=sepia\ntileSize=huge\ncolorCopyFormat=HEX\n"
         "assetDisplayMode=a, b\nlastExportFormat=\nlastExportQuality=high\n",
         "#0A84FF - system medium hex compact png 0.85"}};
    cases.check([&](const QByteArray& file, const QString& read) {
      QTemporaryDir folder;
      QVERIFY(writeFile(folder.filePath("p.ini"), file));
      IniPreferences ini(folder.filePath("p.ini"));
      QCOMPARE(told(ini), read);
    });
  }

  void writesPreferences() {
    TestLibrary library;
    LibraryPreferences& preferences = library.start().preferences();
    preferences.setDefaultAccentHex("#111111");
    preferences.setDefaultAccentHexDark(QString("#222222"));
    preferences.setAppearanceMode(AppearanceMode::dark);
    preferences.setTileSize(TileSize::small);
    preferences.setColorCopyFormat(ColorCopyFormat::cmyk);
    preferences.setAssetDisplayMode(AssetDisplayMode::expanded);
    preferences.setLastExportFormat(ExportFormat::tiff);
    preferences.setLastExportQuality(0.4);
    QCOMPARE(library.appearance.set.last(), AppearanceOverride::dark);
    QCOMPARE(told(library.preferences), "#111111 #222222 dark small cmyk expanded tiff 0.4");
    preferences.setDefaultAccentHexDark(std::nullopt);
    QVERIFY(!LibraryPreferences(library.preferences).defaultAccentHexDark());
  }

  void gridBoundsAndAccent() {
    TestLibrary library;
    Brand brand = library.add("A");
    LibraryStore& store = library.start();
    store.preferences().setTileSize(TileSize::large);
    QCOMPARE(store.gridMinWidth(), 176.0);
    QCOMPARE(store.gridMaxWidth(), 240.0);
    store.preferences().setAssetDisplayMode(AssetDisplayMode::expanded);
    QCOMPARE(store.gridMinWidth(), 250.0);
    QCOMPARE(store.effectiveAccentHex(ColorUtil::Appearance::light), "#0A84FF");
    store.openDocument()->edit([](Brand& open) { open.accentHex = "#123456"; });
    QCOMPARE(store.effectiveAccentHex(ColorUtil::Appearance::dark), "#123456");
    store.select(std::nullopt);
    QCOMPARE(store.effectiveAccentHex(ColorUtil::Appearance::dark), "#0A84FF");
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
    library.pendingPick(std::nullopt);
    QVERIFY(!history.canUndo());
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
};

QTEST_GUILESS_MAIN(TestLibraryStore)
#include "tst_librarystore.moc"
