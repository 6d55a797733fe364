#include "controls/theme/Theme.h"
#include "shell/TestShell.h"
#include "shell/window/AccentTint.h"

#include <QQmlEngine>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

struct ContentTest : TestShell {
  std::unique_ptr<ContentModel> content;

  ContentModel& start(const QStringList& brands = {}) {
    for (const QString& brand : brands) library.add(brand);
    content.reset();
    library.start();
    content = makeContent();
    return *content;
  }
};

}  // namespace

class TestContent : public QObject {
  Q_OBJECT

 private slots:
  void answersTheRequestForANewBrandOfBefore() {
    ContentTest test;
    test.start();
    test.content.reset();
    test.library.store->setNewBrandRequested(true);
    QVERIFY(test.makeContent()->sheets()->current());
    QVERIFY(!test.library.store->newBrandRequested());
  }

  void eachDocumentGetsOneWorkspace() {
    ContentTest test;
    ContentModel& content = test.start();
    QVERIFY(!content.workspace());
    QSignalSpy changed(&content, &ContentModel::workspaceChanged);
    test.library.store->createBrand("Acme");
    QTRY_VERIFY(content.workspace());
    QCOMPARE(changed.size(), 1);  // for two documents, the read one and the made one
    QCOMPARE(content.workspace()->document(), test.library.store->openDocument());

    test.library.store->select(test.library.packagePath("Acme"));
    QCoreApplication::processEvents();
    QCOMPARE(changed.size(), 1);

    QPointer<BrandWorkspace> old = content.workspace();
    test.library.store->deleteBrand(BrandSummary(test.library.store->brands().first()));
    QTRY_VERIFY(!content.workspace());
    QTRY_VERIFY(!old);
  }

  void registersFontsBehindTheFirstFrameAndKeepsAFirstVersion() {
    ContentTest test;
    Section fonts = Section::create("Type");
    const AssetRef file{"a.otf", "A.otf"};
    fonts.items = {Item::create(FontPayload{{"Display", {}, {}, file, {}}})};
    test.library.add("Acme", {fonts});
    test.start();
    test.workers.waitForDone();
    QCOMPARE(test.fonts.registered.size(), 0);  // they would have all text laid out anew
    test.content->followFirstFrame();
    test.workers.waitForDone();
    QCOMPARE(test.fonts.registered.size(), 1);
    QTRY_COMPARE(test.library.store->openDocument()->listVersions().size(), 1);
  }

  void whatBelongsToABrandGoesWithIt() {
    ContentTest test;
    ContentModel& content = test.start({"Acme", "Birch"});
    BrandDocument& document = *test.library.store->openDocument();
    QSignalSpy undoChanged(content.undo(), &WindowUndo::changed);
    document.mutate("Delete", content.undo(), [](Brand& brand) { brand.name = "Changed"; });
    QCOMPARE(content.undo()->undoText(), "Undo Delete");
    QVERIFY(!undoChanged.isEmpty());
    undoChanged.clear();
    content.undo()->undo();
    QVERIFY(!undoChanged.isEmpty());
    QCOMPARE(document.brand().name, "Acme");
    QCOMPARE(content.undo()->redoText(), "Redo Delete");
    content.undo()->redo();
    content.toasts()->show("Deleted 1 item · ⌘Z to undo");
    QCOMPARE(content.toast(), "Deleted 1 item · Ctrl+Z to undo");
    content.selection()->toggle(QUuid::createUuid(), QUuid::createUuid());
    test.library.store->select(test.library.packagePath("Acme"));  // the same
    QVERIFY(content.selection()->count() == 1 && content.undo()->canUndo());
    test.library.store->select(test.library.packagePath("Birch"));
    QVERIFY(content.selection()->count() == 0 && !content.undo()->canUndo());
    QCOMPARE(content.undo()->undoText(), "Undo");
  }

  void picksColorsUndoably() {
    ContentTest test;
    ContentModel& content = test.start({"Acme"});
    content.commands()->pickColorFromScreen();
    test.library.pendingPick(SampledColor{1, 0, 0});
    QCOMPARE(content.undo()->undoText(), "Undo Pick Color");
    // The next window's undo, or none, takes its place.
    test.content.reset();
    test.library.store->pickColorFromScreen();
    test.library.pendingPick(SampledColor{0, 1, 0});
  }

  void tintsWithTheAccentInForce() {
    TestLibrary library;
    LibraryStore& store = library.start();
    QQmlEngine engine;
    Theme& theme = Theme::of(engine);
    const AccentTint tint(store, theme);
    QCOMPARE(theme.accent(), QColor("#0A84FF"));
    store.preferences().setDefaultAccentHexDark("#00FF00");
    QCOMPARE(theme.accent(), QColor("#0A84FF"));
    theme.setDark(true);
    QCOMPARE(theme.accent(), QColor("#00FF00"));
    store.createBrand("Acme")->edit([](Brand& brand) { brand.accentHex = "#FF0000"; });
    QCOMPARE(theme.accent(), QColor("#FF0000"));
    store.openDocument()->edit([](Brand& brand) { brand.accentHex = "no colour"; });
    QCOMPARE(theme.accent(), QColor(0x8e8e93));
    store.select(std::nullopt);
    QCOMPARE(theme.accent(), QColor("#00FF00"));
  }
};

QTEST_MAIN(TestContent)
#include "tst_content.moc"
