#include "assets/DropImport.h"
#include "assets/ItemDrag.h"
#include "model/Uuid.h"
#include "testing/Cases.h"
#include "testing/FakeDrops.h"
#include "testing/HeldStore.h"
#include "testing/TestDocument.h"

#include <QRandomGenerator>
#include <QTest>

using namespace tarnloft;

namespace {

// A document with sections "S", holding text items a and b, and "T", which is empty.
struct Dropping {
  TestServices disk;
  HeldStore held;
  ListedLog log;
  FakeTypes types;
  FakeFonts fonts;
  QThreadPool workers;  // ends before what it works with
  std::unique_ptr<BrandDocument> document =
      *BrandDocument::create({held, log}, disk.folder.path(), "Acme");
  QList<QPair<QUuid, QList<Item>>> addedToClosed;
  QList<QStringList> failed;
  LongWork told;

  Dropping() {
    workers.setMaxThreadCount(4);
    Section s = Section::create("S"), t = Section::create("T");
    for (const char* name : {"a", "b"}) s.items.append(Item::create(TextPayload{name}));
    document->edit([&](Brand& brand) { brand.sections = {s, t}; });
  }
  ~Dropping() { finish(); }
  ImportServices services() {
    return {types,
            fonts,
            workers,
            [this](const BrandPlace&, const QUuid& section, const auto& items) {
              addedToClosed << qMakePair(section, items);
            },
            [this](const QStringList& names, const QString&) { failed << names; },
            &told};
  }
  std::shared_ptr<FakeThing> file(const QString& name, const QByteArray& content = "content") {
    writeFile(disk.path("from/" + name), content);
    return FakeThing::file(disk.path("from/" + name));
  }
  const Section& section(int index) const { return document->brand().sections.at(index); }
  bool drop(const DroppedThings& things, int onSection = 1) {
    return DropImport::handle(services(), things, section(onSection).id, *document);
  }
  void finish() {
    workers.waitForDone();
    QCoreApplication::processEvents();
  }
  QString shape() const { return shapeOf(document->brand(), ","); }
  QString assets() const { return Package::assetsPath(document->packageURL()) + '/'; }
  static std::shared_ptr<FakeThing> tile(const Item& item) {
    return FakeThing::of(ItemDrag::type, canonicalString(item.id).toUtf8());
  }
};

// The asset of an item that has one.
AssetRef assetOf(const Item& item) { return item.exportableAsset().value_or(AssetRef{}); }

}  // namespace

class TestDropImport : public QObject {
  Q_OBJECT

 private slots:
  void classifiesFiles() {
    const Cases<QString, QString, QString, QString> cases{
        {"Mark.png", "image/png", "Image", "Mark", "png"},
        {"notes.pdf", "application/pdf", "Image", "notes", "pdf"},
        {"README", "", "Image", "README", "dat"},
        {".hidden", "text/plain", "Image", ".hidden", "dat"},
        {"Acme.OTF", "", "Type", "Acme", "OTF"},
        {"old.dfont", "", "Type", "old", "dfont"},
        {"face.mov", "font/ttf", "Type", "face", "mov"},
        {"Überzug & Co #1.jpg", "image/jpeg", "Image", "Überzug & Co #1", "jpg"}};
    cases.check([&](const QString& file, const QString& type, const QString& kind,
                    const QString& name, const QString& extension) {
      Dropping dropping;
      dropping.types.types[QFileInfo(file).suffix()] = type;
      QVERIFY(dropping.drop({dropping.file(file, QByteArray())}));
      dropping.finish();
      QCOMPARE(dropping.section(1).items.size(), 1);
      const Item& item = dropping.section(1).items.at(0);
      QCOMPARE(item.typeLabel(), kind);
      QCOMPARE(item.displayName(), name);
      QCOMPARE(assetOf(item).originalName, file);
      QCOMPARE(assetOf(item).filename.mid(36), '.' + extension);
      QVERIFY(QFileInfo::exists(dropping.assets() + assetOf(item).filename));
      QVERIFY(!item.imageBackground && !item.notes);
      QVERIFY(QFileInfo::exists(dropping.disk.path("from/" + file)));
    });
  }

  void namesFontsByTheirContent() {
    const Cases<QByteArray, QString, QString> cases{
        {"family and style", "Inter:Bold", "Inter", "Bold"},
        {"family alone", "Inter", "Inter", QString()},
        {"unreadable", "", "file.name", QString()}};
    cases.check([&](const QByteArray& content, const QString& family, const QString& weight) {
      Dropping dropping;
      QVERIFY(dropping.drop({dropping.file("file.name.ttf", content)}));
      dropping.finish();
      const auto font = std::get<FontPayload>(dropping.section(1).items.at(0).payload).value;
      QCOMPARE(font.family, family);
      QCOMPARE(font.name, family);
      QCOMPARE(font.weight.value_or(QString()), weight);
      QCOMPARE(font.sampleText, "The quick brown fox");
      QCOMPARE(dropping.fonts.registered, QStringList(dropping.assets() + font.asset->filename));
    });
  }

  void namesPictures() {
    const Cases<QString, QString> cases{{"with blanks", " \tHero.jpg \u00a0", "Hero"},
                                        {"none", QString(), "Image"},
                                        {"blank", " \t ", "Image"}};
    cases.check([&](const QString& suggested, const QString& name) {
      Dropping dropping;
      QVERIFY(dropping.drop({FakeThing::of(DropType::image, "no png at all", suggested)}));
      dropping.finish();
      const auto image = std::get<ImagePayload>(dropping.section(1).items.at(0).payload);
      QCOMPARE(image.name, name);
      QCOMPARE(image.asset.originalName, name + ".png");
      QCOMPARE(image.asset.filename.mid(36), ".png");
      QCOMPARE(contentOf(dropping.assets() + image.asset.filename), "no png at all");
    });
  }

  void movesADraggedTileAndNothingElse() {
    Dropping dropping;
    const Item a = dropping.section(0).items.at(0), b = dropping.section(0).items.at(1);
    const auto file = dropping.file("x.png");
    QVERIFY(dropping.drop({file, Dropping::tile(a), Dropping::tile(b)}));
    dropping.finish();
    QCOMPARE(dropping.shape(), "S:b T:a");
    QVERIFY(file->loaded.isEmpty());
    QVERIFY(dropping.drop({Dropping::tile(a)}, 0));
    QVERIFY(dropping.drop({Dropping::tile(b)}, 0));
    QCOMPARE(dropping.shape(), "S:a,b T:");
  }

  void refusesWhatIsNothing() {
    Dropping dropping;
    QVERIFY(!dropping.drop({}));
    const auto text = FakeThing::of("text/plain", "hello");
    const auto brand = FakeThing::of("com.quillmoor.tarnloft.brand", "x");
    QVERIFY(!dropping.drop({text, brand}));
    const auto both = dropping.file("x.jpg");
    both->data[DropType::image] = "pixels";
    QVERIFY(dropping.drop({text, both, brand}));
    dropping.finish();
    QCOMPARE(dropping.shape(), "S:a,b T:x");
    QCOMPARE(both->loaded, QStringList(DropType::fileURL));  // the file, not its picture
  }

  // Answers come in any order, copies end in any order, some fail.
  void landsInTheDropsOrder() {
    QRandomGenerator random(11);
    for (int round = 0; round < 30; ++round) {
      Dropping dropping;
      QList<std::shared_ptr<FakeThing>> late;
      DroppedThings things;
      QStringList expected, held;
      for (int i = 0; i < 12; ++i) {
        const QString name = QString::number(i);
        std::shared_ptr<FakeThing> thing;
        switch (random.bounded(4)) {
          case 0: thing = FakeThing::of(DropType::image, "pixels", name); break;
          case 1: thing = FakeThing::file("/missing/" + name); break;
          default: thing = dropping.file(name + ".png");
        }
        if (thing->path && random.bounded(3) == 0) {
          held << name + ".png";
          dropping.held.hold(held.last());
        }
        thing->isLate = random.bounded(2) == 0;
        if (thing->isLate) late.insert(random.bounded(int(late.size()) + 1), thing);
        if (!thing->path || !thing->path->startsWith("/missing")) expected << name;
        things << thing;
      }
      QVERIFY(dropping.drop(things));
      for (const auto& thing : late) {
        thing->answer();
        QCoreApplication::processEvents();
      }
      while (!held.isEmpty()) dropping.held.release(held.takeAt(random.bounded(int(held.size()))));
      dropping.finish();
      QCOMPARE(dropping.shape(), "S:a,b T:" + expected.join(','));
      QCOMPARE(dropping.held.onMainThread, 0);
    }
  }

  void landsAtTheEndWithoutAnEventLoop() {
    Dropping dropping;
    dropping.held.hold("slow.png");
    QVERIFY(dropping.drop({dropping.file("slow.png"), dropping.file("quick.png")}));
    QVERIFY(!DropImport::finish(dropping.workers, std::chrono::milliseconds(50)));
    QCOMPARE(dropping.shape(), "S:a,b T:");
    dropping.held.release("slow.png");
    QVERIFY(DropImport::finish(dropping.workers, std::chrono::seconds(20)));
    QCOMPARE(dropping.shape(), "S:a,b T:slow,quick");
  }

  void failuresMakeNoItem() {
    Dropping dropping;
    QVERIFY(dropping.drop({FakeThing::file(QString()), FakeThing::file("/missing.png"),
                           FakeThing::file(dropping.disk.folder.path()),
                           FakeThing::of(DropType::image, std::nullopt), dropping.file("x.png")}));
    dropping.finish();
    QCOMPARE(dropping.shape(), "S:a,b T:x");
    QCOMPARE(QDir(dropping.assets()).entryList(QDir::Files).size(), 1);
    // Told once, and not of what there was nothing of.
    const QString folder = QFileInfo(dropping.disk.folder.path()).fileName();
    QCOMPARE(dropping.failed.size(), 1);
    const QStringList& names = dropping.failed.first();
    QCOMPARE(QSet<QString>(names.begin(), names.end()), QSet<QString>({"missing.png", folder}));
  }

  void theUserEndsWhatTakesLong() {
    Dropping dropping;
    for (const char* name : {"x.png", "y.png"}) dropping.held.hold(name);
    QVERIFY(dropping.drop({dropping.file("x.png"), dropping.file("y.png")}));
    QTRY_COMPARE(dropping.told.text(), "Adding 2 files…");
    dropping.told.cancel();
    for (const char* name : {"x.png", "y.png"}) dropping.held.release(name);
    dropping.finish();
    QCOMPARE(dropping.told.text(), "");
    QCOMPARE(dropping.shape(), "S:a,b T:");
    QCOMPARE(QDir(dropping.assets()).entryList(QDir::Files | QDir::Hidden), QStringList());
    QVERIFY(dropping.failed.isEmpty());
  }

  void aClosedDocumentsItemsGoToItsBrand() {
    Dropping dropping;
    dropping.held.hold("x.png");
    QVERIFY(dropping.drop({dropping.file("x.png")}));
    const QUuid section = dropping.section(1).id;
    const QString assets = dropping.assets();
    dropping.document.reset();
    dropping.held.release("x.png");
    dropping.finish();
    QCOMPARE(dropping.addedToClosed.size(), 1);
    const auto& [addedTo, items] = dropping.addedToClosed.first();
    QCOMPARE(addedTo, section);
    QCOMPARE(items.size(), 1);
    QVERIFY(QFileInfo::exists(assets + assetOf(items.first()).filename));
  }

  void aRenamedPackageStillTakesFiles() {
    Dropping dropping;
    for (const char* name : {"1.png", "2.ttf"}) dropping.held.hold(name);
    QVERIFY(dropping.drop({dropping.file("1.png"), dropping.file("2.ttf", "Inter")}));
    const QString package = dropping.document->packageURL(), moved = dropping.disk.path("Moved");
    QVERIFY(QDir().rename(package, moved));
    for (const char* name : {"1.png", "2.ttf"}) dropping.held.release(name);
    dropping.finish();
    QCOMPARE(dropping.shape(), "S:a,b T:1,Inter");
    QVERIFY(!QFileInfo::exists(package));
    for (const Item& item : dropping.section(1).items) {
      QVERIFY(QFileInfo::exists(moved + "/assets/" + assetOf(item).filename));
    }
  }

  void aDeletedPackageStaysDeleted() {
    Dropping dropping;
    dropping.held.hold("1.png");
    dropping.workers.setMaxThreadCount(1);
    QVERIFY(dropping.drop({dropping.file("1.png"), dropping.file("2.png"),
                           FakeThing::of(DropType::image, "pixels")}));
    const QString package = dropping.document->packageURL();
    dropping.document->invalidate();
    QVERIFY(QDir(package).removeRecursively());
    dropping.document.reset();
    dropping.held.release("1.png");
    dropping.finish();
    QVERIFY(!QFileInfo::exists(package));
    QVERIFY(dropping.addedToClosed.isEmpty());
  }
};

QTEST_GUILESS_MAIN(TestDropImport)
#include "tst_dropimport.moc"
