#include "platform/desktop/dragging/MimeDrops.h"
#include "sheets/logos/LogoSetSheet.h"
#include "testing/TestImports.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

// The sheet of an empty logo set, and four files to put into it.
struct LogoTest : TestImports {
  MimeDrops drops{workers};
  QStringList done;
  Item item = Item::create(LogoPayload{{"Logo", {}}});
  std::unique_ptr<LogoSetSheet> sheet;

  LogoTest() {
    document->edit([&](Brand& brand) { brand.sections[0].items = {item}; });
    for (const char* name : {"a.svg", "b.png", "c.png", "d.png"})
      (void)writeFile(disk.path(name), "x");
    sheet = std::make_unique<LogoSetSheet>(
        std::make_unique<ItemBinding>(*document, item.id),
        LogoSetSheet::Services{dialogs, imports(), drops, thumbnails},
        LogoSetSheet::Actions{{}, [this] { done << "ungrouped"; }});
  }
  QStringList paths(const QStringList& names) const {
    QStringList result;
    for (const QString& name : names) result << disk.path(name);
    return result;
  }
  void add(const QStringList& names) {
    dialogs.chosen = paths(names);
    sheet->addVariants();
    arrive();
  }
  void drop(const QStringList& names) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths(names)) urls << QUrl::fromLocalFile(path);
    data.setUrls(urls);
    QVERIFY(sheet->takes(data) && sheet->importDropped(data));
    arrive();
  }
  // Files of a drop are looked at by a worker before they are copied by another.
  void arrive() {
    for (int i = 0; i < 3; ++i) {
      QVERIFY(DropImport::finish(workers, std::chrono::seconds(10)));
      QCoreApplication::processEvents();
    }
  }
  const LogoValue& stored() const {
    return std::get<LogoPayload>(document->brand().sections.at(0).items.at(0).payload).value;
  }
  QString line() const {
    QStringList variants;
    for (const LogoVariant& variant : stored().variants)
      variants << variant.asset.originalName + ' ' + label(variant.role);
    return variants.join(", ");
  }
};

}  // namespace

class TestLogoSet : public QObject {
  Q_OBJECT

 private slots:
  void theFirstFileIsThePrimaryOne() {
    LogoTest test;
    QVERIFY(!test.sheet->canUngroup());
    test.add({"b.png", "missing.png", "a.svg"});
    QCOMPARE(test.line(), "b.png Primary, a.svg Secondary");
    QCOMPARE(test.failed, QStringList("missing.png"));
    test.sheet->remove(0);
    test.drop({"d.png", "c.png"});
    QCOMPARE(test.line(), "a.svg Secondary, d.png Primary, c.png Secondary");
    QCOMPARE(test.sheet->variants()->count(), 3);
    QVERIFY(test.sheet->canUngroup());
  }

  void eachFileHasARoleAndABackdrop() {
    LogoTest test;
    test.add({"a.svg", "b.png"});
    test.sheet->setName("Mark");
    test.sheet->setRole(1, int(LogoRole::icon));
    test.sheet->setBackdrop(0, Backdrop::Checkerboard);
    test.sheet->setBackdrop(1, Backdrop::Dark);
    test.sheet->setBackdrop(1, Backdrop::Default);
    test.sheet->setRole(2, 0);
    QCOMPARE(test.stored().name, "Mark");
    QCOMPARE(test.line(), "a.svg Primary, b.png Icon / Favicon");
    QCOMPARE(test.stored().variants.at(0).background, ImageBackground::checkerboard);
    QCOMPARE(test.stored().variants.at(1).background, std::nullopt);
    const QModelIndex first = test.sheet->variants()->index(0);
    QVERIFY(first.data(LogoVariantList::PathRole).toString().endsWith(".svg"));
    QCOMPARE(first.data(LogoVariantList::BackdropRole).toInt(), int(Backdrop::Checkerboard));
  }

  void theSheetGoesWithTheSet() {
    LogoTest test;
    test.add({"a.svg"});
    QSignalSpy finished(test.sheet.get(), &SheetModel::finished);
    test.sheet->ungroup();
    QCOMPARE(finished.size(), 1);
    QCOMPARE(test.done, QStringList("ungrouped"));
    test.dialogs.chosen = test.paths({"b.png"});
    test.sheet->addVariants();
    test.sheet.reset();  // and what is on its way lands
    test.arrive();
    QCOMPARE(test.line(), "a.svg Primary, b.png Secondary");
  }

  void takesNothingButFiles() {
    LogoTest test;
    QMimeData text;
    text.setText("a.svg");
    QVERIFY(!test.sheet->takes(text) && !test.sheet->importDropped(text));
  }
};

QTEST_GUILESS_MAIN(TestLogoSet)
#include "tst_logoset.moc"
