#include "assets/ExportHandout.h"
#include "library/LibraryPreferences.h"
#include "sheets/exporting/ExportImageSheet.h"
#include "testing/FakeDragging.h"
#include "testing/FakeMedia.h"
#include "testing/TestLibrary.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

// The sheet for a picture of 1500 by 900 pixels.
struct ExportTest {
  TestLibrary library;
  std::unique_ptr<BrandDocument> document =
      *BrandDocument::create(library.disk.services(), library.disk.folder.path(), "Acme");
  FakeImages images;
  BackgroundWork work{1};
  ThumbnailLoader loader{images, work};
  Thumbnails thumbnails{loader};
  ListedPasteboard clipboard;
  ListedDrags drags;
  QThreadPool dragThreads;
  QStringList told;
  Item item = Item::create(ImagePayload{{"0.png", "Hero.png"}, {}});
  std::unique_ptr<ExportImageSheet> sheet;

  explicit ExportTest(const QString& path = "a") {
    library.start();
    document->edit([&](Brand& brand) { brand.sections[0].items = {item}; });
    images.converted = [](ExportFormat format, QSize size) {
      return QByteArray::number(int(format)) + ' ' + QByteArray::number(size.width());
    };
    sheet = std::make_unique<ExportImageSheet>(
        std::make_unique<ItemBinding>(*document, item.id),
        ExportTarget{QUuid::createUuid(), path, "Hero", {1500, 900}},
        ExportImageSheet::Services{library.store->preferences(), images, work, library.disk.files,
                                   library.dialogs, clipboard, drags, dragThreads, thumbnails,
                                   [this](const auto& title, const auto&) { told << title; }});
  }
  ~ExportTest() { (void)work.finish(std::chrono::seconds(10)); }
};

}  // namespace

class TestExportSheet : public QObject {
  Q_OBJECT

 private slots:
  void choicesAreRememberedForAllSheets() {
    ExportTest test;
    ExportImageSheet& sheet = *test.sheet;
    QCOMPARE(sheet.original(), "Original 1500 × 900 px");
    QCOMPARE(sheet.presets(), QStringList({"100%", "50%", "25%", "1024px", "512px"}));
    QVERIFY(!sheet.isLossy());
    sheet.setFormat(int(ExportFormat::jpeg));
    sheet.setQuality(0.5);
    QVERIFY(sheet.isLossy());
    sheet.applyPreset(1);
    sheet.setWidth(0);
    sheet.setHeight(90);
    QCOMPARE(sheet.width(), 150);
    QTRY_COMPARE(sheet.estimate(), "≈ 5 bytes · 150 × 90 · JPEG");
    QVERIFY(test.images.begun().last().endsWith("jpeg 150x90 0.5"));
    sheet.setFormat(int(ExportFormat::png));
    QCOMPARE(sheet.estimate(), "Calculating size…");
    const LibraryPreferences again(test.library.preferences);
    QCOMPARE(again.lastExportFormat(), ExportFormat::png);
    QCOMPARE(again.lastExportQuality(), 0.5);
  }

  void copiesInEveryFormThatProgramsKnow() {
    ExportTest test;
    test.sheet->setFormat(int(ExportFormat::jpeg));
    QSignalSpy finished(test.sheet.get(), &SheetModel::finished);
    test.sheet->copy();
    QVERIFY(test.sheet->isBusy());
    QTRY_COMPARE(finished.size(), 1);
    QStringList types;
    for (const PasteboardForm& form : test.clipboard.forms) types << form.mimeType;
    QCOMPARE(types, QStringList({"image/jpeg", "image/tiff", "image/png"}));
    QCOMPARE(test.clipboard.forms.first().bytes, "1 1500");
    QVERIFY(namesIn(QDir::tempPath() + "/tarnloft-export").filter("-").isEmpty());  // none is left
  }

  void savesWholeFilesOrTells() {
    for (const bool works : {true, false}) {
      ExportTest test;
      test.library.dialogs.answer = test.library.disk.path(works ? "Out.heic" : "missing/Out.heic");
      test.sheet->setFormat(int(ExportFormat::heic));
      bool wasOpen = true;
      test.library.dialogs.whileSaving = [&] { wasOpen = test.sheet != nullptr; };
      connect(test.sheet.get(), &SheetModel::finished, this,
              [&] { QTimer::singleShot(0, test.sheet.get(), [&] { test.sheet.reset(); }); });
      test.sheet->save();
      QTRY_COMPARE(test.library.dialogs.suggested, "Hero.heic");
      QCOMPARE(test.library.dialogs.mimeType, "image/heic");
      QTRY_COMPARE(QFile::exists(*test.library.dialogs.answer), works);
      QTRY_COMPARE(test.told, works ? QStringList() : QStringList("“Out.heic” couldn't be saved"));
    }
  }

  void dragsAFileUnderTheClientsName() {
    ExportTest test;
    QQuickItem view;
    test.images.close();
    test.sheet->prepareDrag();
    test.sheet->drag(&view, {}, 0);  // which waits for a second
    QCOMPARE(test.sheet->estimate(), "Still converting · Drag it again in a moment");
    test.images.open();
    test.sheet->drag(&view, {}, 0);
    QCOMPARE(test.drags.items.size(), 1);
    QVERIFY(test.drags.items.first().file->endsWith("/tarnloft-export/Hero.png"));
    QCOMPARE(test.drags.items.first().suggestedName, "Hero");
    QFile file(*test.drags.items.first().file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "0 1500");
    const QString folder = test.library.disk.path("a"), moved = test.library.disk.path("b");
    QVERIFY(QDir().mkpath(folder));
    const ExportTarget target{
        {}, folder + "/x", {}, {}, *test.library.disk.files.openFolder(folder, folder)};
    QVERIFY(QDir().rename(folder, moved));
    QCOMPARE(target.path(), moved + "/x");
    const ExportTarget longName{{}, {}, QString(300, u'é'), {}};
    QVERIFY(writeFile(test.library.disk.path(ExportHandout::fileName(longName, {})), "x"));
  }

  void whatCantBeConvertedLeavesTheSheetOpen() {
    ExportTest test("broken");
    QSignalSpy finished(test.sheet.get(), &SheetModel::finished);
    QQuickItem view;
    test.sheet->copy();
    QTRY_VERIFY(!test.sheet->isBusy());
    test.sheet->save();
    QTRY_VERIFY(!test.sheet->isBusy());
    test.sheet->drag(&view, {}, 0);
    QVERIFY(finished.isEmpty() && test.clipboard.forms.isEmpty() && test.drags.items.isEmpty());
    QVERIFY(test.library.dialogs.suggested.isEmpty());
    QCOMPARE(test.sheet->estimate(), "The picture couldn't be converted");
    test.sheet->setWidth(9);
    QTRY_COMPARE(test.sheet->estimate(), "The file can't be read");
    test.document->removeItem(test.item.id);
    QTRY_COMPARE(finished.size(), 1);  // the sheet goes with its item
  }
};

QTEST_MAIN(TestExportSheet)
#include "tst_exportsheet.moc"
