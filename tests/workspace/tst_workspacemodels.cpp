#include "controls/sheets/ChoiceSheet.h"
#include "controls/sheets/Question.h"
#include "sheets/versions/VersionHistorySheet.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "workspace/Items.h"
#include "workspace/TestWorkspace.h"
#include "workspace/search/SearchableItems.h"
#include "workspace/tiles/Tile.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;
using Tester = QAbstractItemModelTester;

namespace {

QQuickItem view;  // of nothing, in no window

}  // namespace

class TestWorkspaceModels : public QObject {
  Q_OBJECT

 private slots:
  void sectionsFollowRandomEdits() {
    RandomBrand random(11);
    TestWorkspace test({});
    auto& model = *test.workspace->sections();
    const Tester tester(&model, Tester::FailureReportingMode::QtTest);
    for (int round = 0; round < 200; ++round) {
      const QList<Section> sections = random.edited(test.document().brand()).sections;
      test.document().edit([&](Brand& brand) { brand.sections = sections; });
      test.turn();
      QCOMPARE(model.rowCount(), int(sections.size()));
      for (int i = 0; i < sections.size(); ++i) {
        QVERIFY(test.section(i).section() == sections.at(i));
        QCOMPARE(test.section(i).canMoveUp(), i > 0);
        QCOMPARE(test.section(i).canMoveDown(), i + 1 < sections.size());
      }
    }
  }

  void theSelectionsToolsFollowItAndAct() {
    TestWorkspace test({sectionOf("A", {imageItem("a"), imageItem("b"), colorItem("c")}),
                        sectionOf("", {}), sectionOf("B", {colorItem("x")})});
    SelectionActions& tools = *test.workspace->selected();
    const auto select = [&](std::initializer_list<int> items) {
      tools.clear();
      for (const int item : items)
        test.selection.toggle(test.stored(0).items.at(item).id, test.stored(0).id);
      return QStringList{QString::number(tools.count()), QString::number(tools.exportableCount()),
                         tools.canGroupAsLogo() ? "logo" : ""};
    };
    QCOMPARE(select({2}), (QStringList{"1", "0", ""}));
    QCOMPARE(tools.targets(), (QStringList{"Untitled Section", "B"}));
    QCOMPARE(select({0, 2}), (QStringList{"2", "1", ""}));
    QCOMPARE(select({0, 1}), (QStringList{"2", "2", "logo"}));
    for (const char* file : {"a", "b"})
      QVERIFY(
          writeFile(*test.document().assetPath(imageItem(file).exportableAsset().value()), file));
    test.document().edit([](Brand& brand) { brand.sections[1].name = "Late"; });
    test.turn();
    QCOMPARE(tools.targets(), (QStringList{"Late", "B"}));
    tools.drag(&view, {}, 0);
    QCOMPARE(test.drags.items.size(), 2);
    QVERIFY(test.drags.items.at(0).file != test.drags.items.at(1).file);
    tools.moveTo(1);
    QCOMPARE(test.names(2), (QStringList{"x", "a", "b"}));
    QCOMPARE(tools.count(), 0);
    test.undo.undo();
    (void)select({0, 1});
    tools.groupAsLogo();
    QCOMPARE(test.toasts.message(), "Grouped 2 into a logo · ⌘Z to undo");
    QCOMPARE(test.names(0), (QStringList{"a", "c"}));

    // Of more sections than a menu holds one is found by its name.
    test.document().edit([](Brand& brand) {
      for (int i = 0; i < 60; ++i) brand.sections.insert(1, sectionOf(QString::number(i), {}));
    });
    (void)select({1});
    QVERIFY(tools.hasManyTargets() && tools.targets().isEmpty());
    tools.askTarget();
    auto& choice = dynamic_cast<ChoiceSheet&>(*test.sheets.current());
    choice.setFilter("LATE");
    QCOMPARE(choice.names(), QStringList{"Late"});
    choice.setFilter("b");
    QCOMPARE(choice.names(), QStringList{"B"});
    choice.choose(0);
    QCOMPARE(test.names(62), (QStringList{"x", "c"}));
  }

  void versionsAreKeptLookedAtAndRestored() {
    TestWorkspace test({sectionOf("A", {colorItem("a"), colorItem("b"), imageItem("i")})});
    test.workspace->showVersions();
    auto& sheet = dynamic_cast<VersionHistorySheet&>(*test.sheets.current());
    const int before = sheet.versions()->count();
    sheet.setProperty("newLabel", " First ");
    sheet.saveSnapshot();
    QCOMPARE(sheet.versions()->count(), before + 1);
    QCOMPARE(sheet.versions()->index(0).data(VersionList::TitleRole), " First ");
    QCOMPARE(sheet.property("newLabel"), "");
    sheet.choose(0);
    QCOMPARE(sheet.chosenDifferences(), "The same as now");
    test.document().edit([](Brand& brand) {
      brand.name = "Other";
      brand.sections[0].items = {brand.sections[0].items.at(0), colorItem("c"), textItem("t")};
      std::get<ColorPayload>(brand.sections[0].items[0].payload).value.hex = "#FFFFFF";
      brand.sections << sectionOf("B", {});
    });
    QCOMPARE(sheet.chosenCounts(), "1 section, 3 items");
    QCOMPARE(sheet.chosenDifferences(),
             "Compared with now: Named “Acme”; 1 section less, 1 text less, 1 image more; 1 item "
             "changed since");
    const auto answer = [&](Question::Answer given) {
      sheet.restore(0);
      auto& question = dynamic_cast<Question&>(*test.sheets.current());
      QCOMPARE(question.title(),
               "Restore this version? Your current state is replaced (Ctrl+Z to undo).");
      question.give(given);
    };
    answer(Question::Answer::Dismissed);
    QCOMPARE(test.document().brand().name, "Other");
    QCOMPARE(test.sheets.current(), &sheet);
    answer(Question::Answer::Confirmed);
    QCOMPARE(test.document().brand().name, "Acme");
    QCOMPARE(test.toasts.message(), "Restored · ⌘Z to undo");
    QVERIFY(!test.sheets.current());
    test.undo.undo();
    QCOMPARE(test.document().brand().name, "Other");

    test.workspace->showVersions();
    auto& again = dynamic_cast<VersionHistorySheet&>(*test.sheets.current());
    QVERIFY(QFile::remove(again.versions()->versions().first().url));
    again.choose(0);
    QCOMPARE(again.chosenDifferences(), "This version can’t be read any more.");
    again.remove(0);
    QCOMPARE(again.versions()->count(), before);
    QCOMPARE(again.chosen(), -1);
    test.library.store->select(std::nullopt);
    test.turn();
    QVERIFY(!test.sheets.current());
  }

  void allBrandsAreSearched() {
    TestWorkspace test({sectionOf("Blues", {colorItem("Sea blue"), colorItem("Sand")})});
    test.library.add("Other", {sectionOf("", {headerItem("Blue")})});
    test.library.store->scan();
    PageSearch& search = *test.workspace->search();
    SearchResults& results = *search.results();
    search.setText("blue");
    QVERIFY(!search.isGlobal() && results.count() == 0);
    search.setScope(PageSearch::Scope::AllBrands);
    QVERIFY(search.isGlobal());
    QCOMPARE(test.shown(0).size(), 2);  // the page isn't filtered then
    QStringList rows;
    for (int row = 0; row < results.count(); ++row) {
      const auto tell = [&](int role) { return results.index(row).data(role).toString(); };
      rows << tell(SearchResults::TitleRole) + "|" + tell(SearchResults::DetailRole) + "|" +
                  tell(SearchResults::SymbolRole);
    }
    QCOMPARE(rows, (QStringList{"Blues|Section|rectangle.grid.1x2",
                                "Sea blue|Color · in Blues|paintpalette",
                                "Blue|Header · in Untitled Section|textformat.size.larger"}));
    const QString other = test.library.packagePath("Other");
    QCOMPARE(results.hitCount(other), 1);
    QCOMPARE(results.brandName(other), "Other");
    test.document().edit([](Brand& brand) { brand.sections[0].items = {}; });
    QCOMPARE(results.count(), 2);  // as it is now
    search.pick(1);
    QCOMPARE(test.library.store->selection(), other);
    test.turn();
    QVERIFY(test.library.store->scrollToSection());
    QVERIFY(search.text().isEmpty() && search.scope() == PageSearch::Scope::ThisBrand);
    for (const char* text : {"", "   ", "zzz\"\n"}) {
      search.setText(text);
      search.setScope(PageSearch::Scope::AllBrands);
      QCOMPARE(search.isGlobal(), QString(text).contains('z'));
      QCOMPARE(results.count(), 0);
    }
  }

  // The page's packed texts find what each item tells of itself.
  void thePagesSearchIsThatOfItsItems() {
    RandomBrand random(5);
    for (int round = 0; round < 40; ++round) {
      SharedList<Item> items;
      for (const Section& section : random.brand(3, 12).sections)
        for (const Item& item : section.items) items.append(item);
      const SearchableItems searchable(items);
      QStringList queries{"\u00ff", "e", "a\u0308"};
      for (const Item& item : items) {
        const QString token = item.searchTokens().at(random.below(2));
        queries << token << token.toUpper() << token.mid(token.size() / 3, 3);
      }
      for (const QString& query : queries) {
        if (query.trimmed().isEmpty()) continue;
        SharedList<Item> matching;
        for (const Item& item : items)
          if (item.matchesSearch(query.trimmed())) matching.append(item);
        QVERIFY2(searchable.matching(query) == matching, qPrintable(query));
      }
    }
  }

  void coloursAreCopiedInTheChosenNotation() {
    TestWorkspace test({sectionOf("A", {colorItem("a", "#ff0000"), imageItem("b")})});
    test.library.store->preferences().setColorCopyFormat(ColorCopyFormat::rgb);
    Tile(test.section(0), test.stored(0).items.at(0)).click();
    QCOMPARE(test.pasteboard.texts, QStringList{"rgb(255, 0, 0)"});
    QCOMPARE(test.toasts.message(), "Copied rgb(255, 0, 0)");
    Tile(test.section(0), test.stored(0).items.at(1)).click();
    QCOMPARE(test.pasteboard.texts.size(), 1);
  }

  void theAddMenuAppends() {
    TestWorkspace test({sectionOf("A", {colorItem("a")})});
    for (const auto add : {&SectionModel::addHeader, &SectionModel::addText, &SectionModel::addFont,
                           &SectionModel::addCode, &SectionModel::addLogoSet}) {
      (test.section(0).*add)();
    }
    QCOMPARE(test.names(0),
             QStringList({"a", "Heading", "Add a note…", "Helvetica Neue", "swift", "Logo"}));
    QVERIFY(!test.undo.canUndo());
  }

  void chosenFilesAreImported() {
    TestWorkspace test({sectionOf("A", {})});
    const QString picture = test.library.disk.path("Hero.png");
    QVERIFY(writeFile(picture, "p"));
    test.section(0).importImages();  // cancelled
    test.library.dialogs.chosen = {picture};
    test.section(0).importImages();
    QCOMPARE(test.library.dialogs.openTypes, QStringList{"image/*"});
    QTRY_COMPARE(test.stored(0).items.size(), 1);
    test.section(0).importVideos();
    QCOMPARE(test.library.dialogs.openTypes, QStringList{"video/*"});
    QTRY_COMPARE(test.stored(0).items.size(), 2);
    QCOMPARE(test.stored(0).items.at(0).typeLabel(), "Image");
    QCOMPARE(test.stored(0).items.at(1).typeLabel(), "Video");
    test.section(0).importFontFiles();
    QTRY_COMPARE(test.stored(0).items.size(), 3);
    QCOMPARE(test.stored(0).items.at(2).typeLabel(), "Type");
  }

  void aPickedColourLandsHereAndTellsItsTipOnce() {
    TestWorkspace test({sectionOf("A", {}), sectionOf("B", {})});
    const auto pick = [&](const std::optional<SampledColor>& color) {
      test.section(1).pickColorFromScreen();
      test.library.pendingPick(color);
      test.turn();
    };
    pick(std::nullopt);
    QVERIFY(test.stored(1).items.isEmpty());
    QVERIFY(!test.toasts.message());
    pick(SampledColor{1, 0, 0});
    QCOMPARE(test.names(1), QStringList{"#FF0000"});
    QCOMPARE(test.undo.undoActionName(), "Pick Color");
    QCOMPARE(test.library.store->activeColorSectionID(), test.stored(1).id);
    QVERIFY(test.toasts.message()->startsWith("Tip: press ⌃⌘P"));
    test.toasts.show("other");
    pick(SampledColor{0, 0, 1});
    QCOMPARE(test.names(1).size(), 2);
    QCOMPARE(test.toasts.message(), "other");
  }

  void colourSnippetsAreCopied() {
    TestWorkspace test({sectionOf("A", {colorItem("Sea", "#123456")}), sectionOf("B", {})});
    QVERIFY(test.section(0).hasColors() && !test.section(1).hasColors());
    QCOMPARE(SectionModel::paletteFormats(),
             (QStringList{"CSS Variables", "SCSS", "Tailwind", "SwiftUI", "JSON"}));
    test.section(0).copyColors("SCSS");
    QCOMPARE(test.toasts.message(), "Copied SCSS");
    QCOMPARE(test.pasteboard.texts, QStringList{"$sea: #123456;"});
  }

  void nothingHappensOnceTheDocumentHasGone() {
    TestWorkspace test({sectionOf("A", {colorItem("a"), textItem("b")})});
    Tile tile(test.section(0), test.stored(0).items.at(0));
    test.document().edit([](Brand& brand) { brand.name = "Other"; });
    test.library.store->select(std::nullopt);
    test.turn();
    tile.drag(&view);
    test.workspace->commands().editNotes(tile.item().id);
    QVERIFY(!test.sheets.current());
    test.section(0).addColor();
    test.section(0).importImages();
    test.section(0).remove();
    test.workspace->selected()->selectAll();
    test.workspace->selected()->remove();
    QVERIFY(!test.workspace->drop(QMimeData(), test.section(0).id()));
    QVERIFY(test.drags.items.isEmpty());
  }

  void aToastIsReplacedAndGoes() {
    ToastCenter toasts(std::chrono::milliseconds(20));
    QSignalSpy changes(&toasts, &ToastCenter::messageChanged);
    toasts.show("first");
    toasts.show("first");
    toasts.show("second");
    QCOMPARE(toasts.message(), "second");
    QTRY_VERIFY(!toasts.message());
    QCOMPARE(changes.count(), 3);
    QCOMPARE(ToastCenter::duration, std::chrono::milliseconds(1400));
  }
};

QTEST_MAIN(TestWorkspaceModels)
#include "tst_workspacemodels.moc"
