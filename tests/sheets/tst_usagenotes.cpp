#include "document/UndoHistory.h"
#include "sheets/UsageNotesSheet.h"
#include "testing/TestServices.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

using Kind = UsageNotesSheet::Kind;

// The sheet of one of a section's two items.
struct NotesTest {
  TestServices disk;
  std::unique_ptr<BrandDocument> document =
      *BrandDocument::create(disk.services(), disk.folder.path(), "Acme");
  Item item = Item::create(ColorPayload{{"#123456", "Sea", {}}});
  std::unique_ptr<UsageNotesSheet> sheet;

  NotesTest() {
    const Item other = Item::create(TextPayload{"Other"});
    document->edit([&](Brand& brand) { brand.sections[0].items = {other, item}; });
    sheet = std::make_unique<UsageNotesSheet>(std::make_unique<ItemBinding>(*document, item.id));
  }
  // What is stored, as "kind:text".
  QStringList stored() const {
    const auto place = *document->brand().placeOf(item.id);
    const Item& now = document->brand().sections.at(place.section).items.at(place.item);
    if (!now.notes) return {"none"};
    QStringList result;
    for (const UsageNote& note : *now.notes) {
      result << QString::number(int(note.kind)) + ':' + note.text;
    }
    return result;
  }
};

}  // namespace

class TestUsageNotes : public QObject {
  Q_OBJECT

 private slots:
  void eachChangeIsStoredAtOnce() {
    NotesTest test;
    UsageNotesSheet& sheet = *test.sheet;
    const QAbstractItemModelTester tester(sheet.notes());
    QCOMPARE(sheet.title(), "Sea");
    sheet.add(Kind::DoRule);
    sheet.add(Kind::Note);
    QCOMPARE(test.stored(), QStringList({"0:", "2:"}));
    sheet.setText(1, "Keep it clear");
    sheet.setKind(1, Kind::DontRule);
    QCOMPARE(test.stored(), QStringList({"0:", "1:Keep it clear"}));
    QCOMPARE(sheet.notes()->index(1).data(UsageNoteList::TextRole), "Keep it clear");
    sheet.remove(7);
    sheet.remove(0);
    QCOMPARE(test.stored(), QStringList("1:Keep it clear"));
    sheet.remove(0);
    QCOMPARE(test.stored(), QStringList("none"));
    QCOMPARE(sheet.notes()->count(), 0);
  }

  void followsTheItemUntilItGoes() {
    NotesTest test;
    QSignalSpy finished(test.sheet.get(), &SheetModel::finished);
    test.document->moveSection(test.document->brand().sections.at(0).id, {});
    UndoHistory undo;
    test.document->mutate("Move", &undo, [&](Brand& brand) {
      brand.sections[0].items.append(brand.sections[1].items.takeAt(1));
    });
    test.sheet->add(Kind::Note);
    QCOMPARE(test.stored(), QStringList("2:"));
    test.document->updateItem(test.item.id, [](Item& item) {
      std::get<ColorPayload>(item.payload).value.name = "Lake";
      item.setUsageNotes({});
    });
    QCOMPARE(test.sheet->title(), "Lake");
    QCOMPARE(test.sheet->notes()->count(), 0);
    undo.undo();
    QVERIFY(finished.isEmpty());
    test.document->removeItem(test.item.id);
    QCOMPARE(finished.size(), 1);
    test.sheet->add(Kind::Note);  // while it closes
    QCOMPARE(test.document->brand().sections.at(1).items.size(), 1);
  }
};

QTEST_GUILESS_MAIN(TestUsageNotes)
#include "tst_usagenotes.moc"
