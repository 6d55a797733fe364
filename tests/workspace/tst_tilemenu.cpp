#include "sheets/AssetRenameSheet.h"
#include "sheets/UsageNotesSheet.h"
#include "sheets/editors/ItemEditorSheet.h"
#include "testing/Cases.h"
#include "workspace/TestWorkspace.h"
#include "workspace/tiles/TileMenuEntries.h"

#include <QTest>

using namespace tarnloft;

namespace {

const QString tail = "|—|Usage & Notes…|—|Duplicate|Move Left|(Move Right)|—|Delete";

// The menu of one tile that stands behind a heading.
struct MenuTest : TestWorkspace {
  explicit MenuTest(ItemPayload payload)
      : TestWorkspace(
            {Section{QUuid::createUuid(),
                     "Section",
                     {},
                     {Item::create(HeaderPayload{"Head", 1}), Item::create(std::move(payload))}}}) {
  }
  const Item& item() { return stored(0).items.at(place); }
  QList<MenuEntry> entries() { return tileMenuEntries(item(), stored(0), workspace->commands()); }
  int place = 1;
  // As one line; what can't be chosen stands in parentheses.
  QString line() {
    QStringList texts;
    const auto all = entries();
    for (const MenuEntry& entry : all) {
      const bool isIdle = !entry.isEnabled || entry.isTelling();
      texts << (entry.text.isEmpty() ? "—" : isIdle ? '(' + entry.text + ')' : entry.text);
    }
    return texts.join('|');
  }
  void choose(const QString& text) { choose(entries(), text); }
  static void choose(const QList<MenuEntry>& entries, const QString& text) {
    for (const MenuEntry& entry : entries) {
      if (entry.text == text) return entry.trigger();
    }
    QFAIL(qPrintable("no entry " + text));
  }
};

AssetRef asset(const QString& name) { return {"0.png", name}; }

}  // namespace

class TestTileMenu : public QObject {
  Q_OBJECT

 private slots:
  void offersByKind() {
    const QString file = "Copy File Name|Show in File Manager";
    const LogoVariant variant{QUuid(), asset("a.svg"), {}, {}};
    const Cases<ItemPayload, QString> cases{
        {"color", ColorPayload{{"#F00", {}, "PMS 021 C"}},
         "Copy HEX: #F00|Copy HEX (lower): #f00|Copy RGB: rgb(255, 0, 0)|"
         "Copy HSL: hsl(0, 100%, 50%)|Copy CMYK: cmyk(0%, 100%, 100%, 0%)|Copy Spot: PMS 021 "
         "C|—|(Contrast (WCAG))|"
         "(On white  4.00:1 · AA Large)|(On black  5.25:1 · AA)|—|Set as Brand Accent|Edit…"},
        {"no color", ColorPayload{{"teal", {}, {}}}, "Copy HEX: teal|—|Set as Brand Accent|Edit…"},
        {"gradient", GradientPayload{}, "Copy CSS Gradient|Rename…|Edit…"},
        {"image", ImagePayload{asset("a.png"), {}},
         "Rename…|Export As…|—|Background|Set as Brand Icon|Set as Section Icon|—|" + file},
        {"video", VideoPayload{asset("a.mp4"), {}}, "Rename…|—|Play|" + file},
        {"font by name", FontPayload{{"Inter", {}, {}, {}, {}}}, "Rename…|Attach Font File…|Edit…"},
        {"font", FontPayload{{"Inter", {}, {}, asset("a.otf"), {}}},
         "Rename…|Replace Font File…|" + file + "|Edit…"},
        {"code", CodePayload{{"swift", "x", {}}}, "Copy Snippet|Rename…|Edit…"},
        {"empty logo", LogoPayload{{"Logo", {}}}, "Rename…|Edit Variants…"},
        {"logo", LogoPayload{{"Logo", {variant}}},
         "Rename…|Edit Variants…|Ungroup Logo|Export Primary As…|Set Primary as Brand Icon|Show "
         "Primary in File "
         "Manager"}};
    cases.check([](const ItemPayload& payload, const QString& line) {
      QCOMPARE(MenuTest(payload).line(), line + tail);
    });
  }

  void doesWhatItSays() {
    MenuTest test(ImagePayload{asset("Mark.png"), {}});
    const QUuid id = test.item().id;
    test.choose(test.entries().at(3).entries, "Checkerboard");
    QCOMPARE(test.item().imageBackground, ImageBackground::checkerboard);
    QVERIFY(test.entries().at(3).entries.at(3).isChecked);
    test.choose(test.entries().at(3).entries, "Default");
    QCOMPARE(test.item().imageBackground, std::nullopt);
    test.choose("Set as Brand Icon");
    test.choose("Set as Section Icon");
    QCOMPARE(test.document().brand().emblem->asset, asset("Mark.png"));
    QCOMPARE(test.stored(0).emblem->asset, asset("Mark.png"));
    QVERIFY(test.toasts.text().isEmpty());
    test.choose("Copy File Name");
    QCOMPARE(test.pasteboard.texts.last(), "Mark.png");
    QCOMPARE(test.toasts.text(), "Copied Mark.png");
    test.choose("Show in File Manager");
    QVERIFY(test.library.viewer.revealed.last().endsWith("/assets/0.png"));
    test.choose("Duplicate");
    QCOMPARE(test.names(0), QStringList({"Head", "Mark", "Mark"}));
    QVERIFY(test.stored(0).items.at(2).id != id);
    test.choose("Move Left");
    test.place = 0;
    QCOMPARE(test.stored(0).items.at(0).id, id);
    test.choose("Rename…");
    QVERIFY(qobject_cast<AssetRenameSheet*>(test.sheets.current()));
    const QList<MenuEntry> before = test.entries();
    test.choose("Delete");
    MenuTest::choose(before, "Set as Brand Icon");
    MenuTest::choose(before, "Move Right");
    QCOMPARE(test.names(0).size(), 2);
    test.workspace.reset();
    MenuTest::choose(before, "Usage & Notes…");
  }

  void coloursAndCodeAreCopied() {
    MenuTest color(ColorPayload{{"#F00", {}, "PMS 021 C"}});
    color.choose("Copy RGB: rgb(255, 0, 0)");
    QCOMPARE(color.toasts.text(), "Copied rgb(255, 0, 0)");
    color.choose("Set as Brand Accent");
    QCOMPARE(color.document().brand().accentHex, "#F00");
    QCOMPARE(color.toasts.text(), "Brand accent set");
    color.choose("Edit…");
    QVERIFY(qobject_cast<ItemEditorSheet*>(color.sheets.current())->color());
    MenuTest code(CodePayload{{"swift", "let x", {}}});
    code.choose("Copy Snippet");
    QCOMPARE(code.pasteboard.texts.last(), "let x");
    QCOMPARE(code.toasts.text(), "Copied snippet");
  }

  void aLogoIsUngroupedInOneStep() {
    const LogoVariant dark{QUuid(), asset("a.svg"), LogoRole::reversed, ImageBackground::dark};
    const LogoVariant light{QUuid(), asset("b.svg"), {}, {}};
    MenuTest test(LogoPayload{{"Logo", {light, dark}}});
    const Brand before = test.document().brand();
    test.choose("Ungroup Logo");
    QCOMPARE(test.stored(0).items.size(), 3);
    QCOMPARE(test.toasts.text(), "Ungrouped into 2 images · ⌘Z to undo");
    test.undo.undo();
    QCOMPARE(test.document().brand().sections, before.sections);
  }

  void aFontsFileBringsItsNames() {
    MenuTest test(FontPayload{{"Inter", "Bold", {}, {}, "Own"}});
    const QString font = test.library.disk.path("New.otf");
    QVERIFY(writeFile(font, "Acme Sans:Light"));
    test.library.dialogs.answer = font;
    test.choose("Attach Font File…");
    QTRY_VERIFY(!test.toasts.text().isEmpty());
    const FontValue& value = std::get<FontPayload>(test.item().payload).value;
    QCOMPARE(value.family + ' ' + value.weight.value(), "Acme Sans Light");
    QCOMPARE(value.name, "Own");
    QCOMPARE(value.asset->originalName, "New.otf");
    test.library.dialogs.answer = test.library.disk.path("nowhere.otf");
    test.choose("Replace Font File…");
    QVERIFY(test.workers.waitForDone());
    TestWorkspace::turn();
    QCOMPARE(std::get<FontPayload>(test.item().payload).value.asset->originalName, "New.otf");
  }
};

QTEST_MAIN(TestTileMenu)
#include "tst_tilemenu.moc"
