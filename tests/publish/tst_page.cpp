#include "document/Package.h"
#include "publish/BrandPageExporter.h"
#include "publish/PageMarkup.h"
#include "testing/FaultyStore.h"
#include "testing/RandomBrand.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

namespace {

QString str(const char* text) { return QString::fromUtf8(text); }

struct Page {
  TestServices disk;
  FaultyStore store;
  std::unique_ptr<BrandDocument> document;
  QString path = disk.path("page.html");
  Progress progress;

  Page() {
    const DocumentServices services{store, disk.log, [this] { return disk.now; }};
    document = *BrandDocument::create(services, disk.folder.path(), str("Acme"));
  }
  void addAsset(const AssetRef& asset, const QByteArray& content) {
    writeFile(Package::assetsPath(document->packageURL()) + u'/' + asset.filename, content);
  }
  void setItems(const SharedList<Item>& items) {
    document->edit([&](Brand& brand) { brand.sections.first().items = items; });
  }
  QStringList strays() const {
    return QDir(disk.folder.path()).entryList({str(".*")}, QDir::Files | QDir::Hidden);
  }
};

const AssetRef picture{"a.PNG", "Mark.png"};

SharedList<Item> everyUseOfAFile() {
  Item image = Item::create(ImagePayload{picture, {}});
  image.setUsageNotes({{QUuid(), UsageKind::note, str("seen")}});
  return {image, Item::create(VideoPayload{picture, str("Reel")}),
          Item::create(FontPayload{{str("Face"), {}, {}, picture, {}}}),
          Item::create(LogoPayload{{str("Set"), {{QUuid(), picture, LogoRole::icon, {}}}}})};
}

}  // namespace

// The page's exact bytes are checked by the independent reading in tests/oracle.
class TestPage : public QObject {
  Q_OBJECT

 private slots:
  void theFileHoldsTheSameAsTheText() {
    Page page;
    RandomBrand random(21);
    page.addAsset(picture, QByteArray(1'000'000, 'x'));
    page.document->setBrand(random.brand(3, 40));
    page.setItems(everyUseOfAFile());
    QVERIFY(BrandPageExporter::writeFile(*page.document, page.store, page.path, page.progress));
    QCOMPARE(contentOf(page.path), BrandPageExporter::html(*page.document).toUtf8());
    QVERIFY(page.strays().isEmpty());
  }

  void dataURLsHoldTheFile() {
    QRandomGenerator random(1);
    for (const int size : {0, 1, 2, 3, 393215, 393216, 393217, 1'000'001}) {
      QByteArray content(size, Qt::Uninitialized);
      for (char& c : content) c = char(random.generate());
      Page page;
      page.addAsset(picture, content);
      MemorySink sink;
      QVERIFY(writeDataURL(picture, *page.document, sink));
      QCOMPARE(sink.bytes(), "data:image/png;base64," + content.toBase64());
    }
  }

  void anAssetThatFailsMidwayDegradesItsFragment() {
    Page page;
    page.setItems(everyUseOfAFile());
    const QString missing = BrandPageExporter::html(*page.document);
    QVERIFY(missing.contains(str("<div class=\"asset\"><div class=\"frame\">Reel</div></div>")));
    QVERIFY(!missing.contains(str("seen")) && !missing.contains(str("Download")));
    page.addAsset(picture, QByteArray(1000, 'x'));
    QVERIFY(BrandPageExporter::html(*page.document).contains(str("Download font")));
    page.store.fault = FaultyStore::Fault::failReads;
    QCOMPARE(BrandPageExporter::html(*page.document), missing);
    QVERIFY(BrandPageExporter::writeFile(*page.document, page.store, page.path, page.progress));
    QCOMPARE(contentOf(page.path), missing.toUtf8());
  }

  void aFailedWriteLeavesTheOldPage() {
    Page page;
    page.addAsset(picture, QByteArray(3'000'000, 'x'));
    page.setItems(everyUseOfAFile());
    page.store.steps = 0;
    QVERIFY(BrandPageExporter::writeFile(*page.document, page.store, page.path, page.progress));
    const int steps = page.store.steps;
    QVERIFY(writeFile(page.path, "old"));
    for (int step = 1; step <= steps; ++step) {
      page.store.fault = FaultyStore::Fault::failStep;
      page.store.atStep = step;
      page.store.steps = 0;
      QVERIFY(!BrandPageExporter::writeFile(*page.document, page.store, page.path, page.progress));
      QCOMPARE(contentOf(page.path), QByteArray("old"));
      QVERIFY(page.strays().isEmpty());
    }
  }
};

QTEST_GUILESS_MAIN(TestPage)
#include "tst_page.moc"
