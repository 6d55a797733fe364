#include "publish/BrandPageExporter.h"
#include "publish/PageMarkup.h"
#include "testing/RandomBrand.h"
#include "testing/TestDocument.h"

#include <QTest>

using namespace tarnloft;

namespace {

struct Page : TestDocument {
  QString path = disk.path("page.html");
  Progress progress;

  void addAsset(const AssetRef& asset, const QByteArray& content) {
    writeFile(assetPath(asset.filename), content);
  }
  void setItems(const SharedList<Item>& items) {
    document->edit([&](Brand& brand) { brand.sections.first().items = items; });
  }
  QStringList strays() const {
    return QDir(disk.folder.path()).entryList({".*"}, QDir::Files | QDir::Hidden);
  }
};

const AssetRef picture{"a.PNG", "Mark.png"};

SharedList<Item> everyUseOfAFile() {
  Item image = Item::create(ImagePayload{picture, {}});
  image.setUsageNotes({{QUuid(), UsageKind::note, "seen"}});
  return {image, Item::create(VideoPayload{picture, "Reel"}),
          Item::create(FontPayload{{"Face", {}, {}, picture, {}}}),
          Item::create(LogoPayload{{"Set", {{QUuid(), picture, LogoRole::icon, {}}}}})};
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
    QVERIFY(missing.contains("<div class=\"asset\"><div class=\"frame\">Reel</div></div>"));
    QVERIFY(!missing.contains("seen") && !missing.contains("Download"));
    page.addAsset(picture, QByteArray(1000, 'x'));
    QVERIFY(BrandPageExporter::html(*page.document).contains("Download font"));
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
