#include "document/UndoHistory.h"
#include "sheets/AccentColorSheet.h"
#include "sheets/AssetRenameSheet.h"
#include "sheets/ItemRenaming.h"
#include "sheets/UsageNotesSheet.h"
#include "sheets/editors/ItemEditorSheet.h"
#include "testing/Cases.h"
#include "testing/TestDocument.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

// A brand with that one item, and its editor.
struct EditorTest : TestDocument {
  Item item;
  std::function<void(const QString&)> picked;
  std::unique_ptr<ItemEditorSheet> sheet;

  explicit EditorTest(ItemPayload payload) : item(Item::create(std::move(payload))) {
    item.imageBackground = ImageBackground::dark;
    item.setUsageNotes({{QUuid::createUuid(), UsageKind::note, "Keep"}});
    document->edit([&](Brand& brand) { brand.sections[0].items = {item}; });
    sheet = std::make_unique<ItemEditorSheet>(binding(), QList<QColor>(),
                                              [this](auto callback) { picked = callback; });
  }
  std::unique_ptr<ItemBinding> binding() {
    return std::make_unique<ItemBinding>(*document, item.id);
  }
  const Item& now() const { return document->brand().sections.at(0).items.at(0); }
  template <class Payload>
  const auto& value() const {
    return std::get<Payload>(now().payload).value;
  }
};

AssetRef asset(const QString& name) { return {"0.png", name}; }

}  // namespace

// Sheets that change what an item is, each keystroke at once.
class TestEditors : public QObject {
  Q_OBJECT

 private slots:
  void aColorIsStoredAsTyped() {
    EditorTest test(ColorPayload{{"#123456", "Sea", {}}});
    ColorEditor& editor = *test.sheet->color();
    QCOMPARE(test.sheet->title(), "Edit Color");
    editor.setHex("#12");
    QCOMPARE(test.value<ColorPayload>().hex, "#12");
    QCOMPARE(editor.color(), QColor(0x8e, 0x8e, 0x93));
    editor.setHex("#12345680");
    QCOMPARE(editor.color().alpha(), 0x80);
    editor.pick(QColor(1, 2, 255, 9));
    QCOMPARE(editor.hex(), "#0102FF");
    editor.setName("");
    editor.setSpot("PMS 021 C");
    QCOMPARE(test.value<ColorPayload>(), (ColorValue{"#0102FF", {}, "PMS 021 C"}));
    editor.sample();
    test.picked("#ABCDEF");
    QCOMPARE(editor.hex(), "#ABCDEF");
    Item same = test.item;
    same.payload = test.now().payload;
    QCOMPARE(test.now(), same);
    test.sheet.reset();
    test.picked("#000000");  // the sheet has closed meanwhile
    QCOMPARE(test.value<ColorPayload>().hex, "#ABCDEF");
  }

  void aGradientKeepsItsStopsOrder() {
    const QUuid first = QUuid::createUuid(), second = QUuid::createUuid();
    EditorTest test(GradientPayload{{{{first, "#000000", 0}, {second, "no", 1}}, 45, "Dawn"}});
    GradientEditor& editor = *test.sheet->gradient();
    editor.setLocation(0, 0.9);
    editor.setLocation(1, 0.25);
    editor.pick(1, Qt::red);
    editor.pick(2, Qt::red);
    editor.setAngle(360);
    editor.setName("");
    const GradientValue expected{{{first, "#000000", 0.9}, {second, "#FF0000", 0.25}}, 360, {}};
    QCOMPARE(test.value<GradientPayload>(), expected);
    QCOMPARE(editor.stops()->index(1).data(GradientStopList::ColorRole).value<QColor>(),
             QColor(Qt::red));
  }

  void fontsAndCodeStoreNothingForEmptyTexts() {
    EditorTest type(FontPayload{{"Inter", "Bold", "Ag", asset("Inter.otf"), "Display"}});
    FontEditor& font = *type.sheet->font();
    font.setFamily("In");
    font.setWeight("");
    font.setSample("");
    QCOMPARE(type.value<FontPayload>(),
             (FontValue{"In", {}, {}, asset("Inter.otf"), QString("Display")}));
    EditorTest snippet(CodePayload{{"swift", "// Snippet", "Name"}});
    CodeEditor& code = *snippet.sheet->code();
    code.setLanguage("");
    code.setName("");
    code.setSnippet("a\n\tb");
    QCOMPARE(snippet.value<CodePayload>(), (CodeValue{"", "a\n\tb", {}}));
  }

  void aBrandHasTwoAccentsOrNone() {
    EditorTest test(ColorPayload{{"#123456", {}, {}}});
    AccentColorSheet sheet(*test.document, "#0000FF");
    const auto stored = [&] {
      const Brand& brand = test.document->brand();
      return brand.accentHex.value_or("none") + ' ' + brand.accentHexDark.value_or("none");
    };
    QCOMPARE(sheet.accent(), QColor(Qt::blue));
    sheet.setSeparateDark(true);
    QCOMPARE(stored(), "none #0000FF");
    sheet.pick(QColor(255, 0, 0, 3));
    sheet.pickDark(Qt::green);
    QCOMPARE(stored(), "#FF0000 #00FF00");
    sheet.setSeparateDark(false);
    sheet.setSeparateDark(true);
    QCOMPARE(stored(), "#FF0000 #FF0000");
    sheet.useDefault();
    QCOMPARE(stored(), "none none");
    QVERIFY(!sheet.isOwn() && !sheet.hasSeparateDark());
    QSignalSpy finished(&sheet, &SheetModel::finished);
    test.sheet.reset();
    test.document.reset();
    QCOMPARE(finished.size(), 1);
    sheet.pick(Qt::red);
  }

  void aNoteIsStoredAtOnce() {
    using Kind = UsageNotesSheet::Kind;
    EditorTest test(ColorPayload{{"#123456", "Sea", {}}});
    // What is stored, as "kind:text".
    const auto stored = [&] {
      QStringList result;
      for (const UsageNote& note : test.now().notes.value_or(QList<UsageNote>())) {
        result << QString::number(int(note.kind)) + ':' + note.text;
      }
      return test.now().notes ? result.join(' ') : "none";
    };
    UsageNotesSheet sheet(test.binding());
    const QAbstractItemModelTester tester(sheet.notes());
    QCOMPARE(sheet.title(), "Sea");
    sheet.add(Kind::DoRule);
    sheet.setText(1, "Clear");
    sheet.setKind(1, Kind::DontRule);
    QCOMPARE(stored(), "2:Keep 1:Clear");
    QCOMPARE(sheet.notes()->index(1).data(UsageNoteList::TextRole), "Clear");
    sheet.remove(7);
    sheet.remove(0);
    QCOMPARE(stored(), "1:Clear");
    test.document->updateItem(test.item.id, [](Item& item) { item.setUsageNotes({}); });
    QCOMPARE(sheet.notes()->count(), 0);
    sheet.add(Kind::Note);
    sheet.remove(0);
    QCOMPARE(stored(), "none");
  }

  void aSheetFollowsItsItemUntilItGoes() {
    EditorTest test(ColorPayload{{"#123456", "Sea", {}}});
    AssetRenameSheet renaming(test.binding(), [](const QString&) {});
    UsageNotesSheet notes(test.binding());
    QSignalSpy edited(test.sheet.get(), &SheetModel::finished);
    QSignalSpy renamed(&renaming, &SheetModel::finished);
    QSignalSpy noted(&notes, &SheetModel::finished);
    UndoHistory undo;
    test.document->mutate("Move", &undo, [](Brand& brand) {
      brand.sections[1].items.append(brand.sections[0].items.takeAt(0));
    });
    test.sheet->color()->setName("Lake");
    QCOMPARE(notes.title(), "Lake");
    undo.undo();
    QCoreApplication::processEvents();
    QCOMPARE(test.now().displayName(), "Lake");
    QVERIFY(edited.isEmpty() && renamed.isEmpty() && noted.isEmpty());
    test.document->removeItem(test.item.id);
    QCoreApplication::processEvents();
    QCOMPARE(edited.size() + renamed.size() + noted.size(), 3);
    test.sheet->color()->setHex("#000000");  // while it closes
    notes.add(UsageNotesSheet::Kind::Note);
    QVERIFY(test.document->brand().sections.at(0).items.isEmpty());
  }

  void renamesFilesWithinTheirExtension() {
    const Cases<QString, QString, QString> cases{{"plain", "AcmeLogo.png", "Hero", "Hero.png"},
                                                 {"typed", "AcmeLogo.png", "Hero.jpg", "Hero.png"},
                                                 {"none", "AcmeLogo", "Hero", "Hero"},
                                                 {"only dots", "a.png", ".x", ".x.png"}};
    cases.check([](const QString& before, const QString& name, const QString& after) {
      EditorTest test(ImagePayload{asset(before), {}});
      QString told;
      AssetRenameSheet sheet(test.binding(), [&](const QString& renamed) { told = renamed; });
      QCOMPARE(sheet.title(), "Rename Image");
      QCOMPARE(sheet.footnote().contains("(keeps its .png extension)"), before.endsWith(".png"));
      sheet.setText("  \n");
      sheet.confirm();
      sheet.setText(' ' + name + '\n');
      sheet.confirm();
      const auto image = std::get<ImagePayload>(test.now().payload);
      QCOMPARE(told, name);
      QCOMPARE(image.name, name);
      QCOMPARE(image.asset, (AssetRef{"0.png", after}));
    });
    Item logo = Item::create(LogoPayload{{"Set", {{QUuid(), asset("a.svg"), {}, {}}}}});
    ItemRenaming::applyRename(logo, "Mark");
    const LogoValue& set = std::get<LogoPayload>(logo.payload).value;
    QCOMPARE(set.name, "Mark");
    QCOMPARE(set.variants.first().asset.originalName, "a.svg");
    QVERIFY(ItemRenaming::renameFootnote(logo)->contains(".svg"));
    QVERIFY(!ItemRenaming::renameFootnote(Item::create(TextPayload{"x"})));
  }
};

QTEST_GUILESS_MAIN(TestEditors)
#include "tst_editors.moc"
