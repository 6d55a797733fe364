#include "document/Package.h"
#include "document/UndoHistory.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestServices.h"
#include "workspace/GroupOperations.h"

#include <QTest>

using namespace tarnloft;

namespace {

// Sections S and T. An item is a letter: i to n are images, c to e colours, h a header.
struct Grouping {
  TestServices disk;
  std::unique_ptr<BrandDocument> document =
      *BrandDocument::create(disk.services(), disk.folder.path(), "Acme");
  TileSelection selection;
  UndoHistory history;
  GroupOperations operations{*document, selection, &history};
  QHash<QChar, QUuid> idOf;

  explicit Grouping(const QString& s = "icjdhk", const QString& t = "le") {
    document->edit([&](Brand& brand) { brand.sections = {section("S", s), section("T", t)}; });
  }
  Section section(const QString& name, const QString& letters) {
    Section result = Section::create(name);
    for (const QChar letter : letters) result.items.append(item(letter));
    return result;
  }
  Item item(QChar letter) {
    const AssetRef asset{QString(letter) + ".png", QString(letter) + " file.png"};
    ItemPayload payload = ImagePayload{asset, QString(letter)};
    if (letter == 'h') payload = HeaderPayload{"h", 1};
    if (letter >= 'c' && letter <= 'e') payload = ColorPayload{{"#123456", QString(letter), {}}};
    const Item result = Item::create(payload);
    idOf[letter] = result.id;
    return result;
  }
  const Section& at(int index) const { return document->brand().sections.at(index); }
  void select(const QString& letters, int inSection = 0) {
    selection.clear();
    for (const QChar letter : letters) {
      selection.toggle(idOf.value(letter, QUuid::createUuid()), at(inSection).id);
    }
  }
  // "S:icj T:le", a logo as "(ij)".
  QString shape() const {
    QStringList sections;
    for (const Section& each : document->brand().sections) {
      QString text = each.name + ':';
      for (const Item& item : each.items) text += letters(item);
      sections << text;
    }
    return sections.join(' ');
  }
  static QString letters(const Item& item) {
    const auto* logo = std::get_if<LogoPayload>(&item.payload);
    if (!logo) return item.displayName();
    QString text = "(";
    for (const LogoVariant& variant : logo->value.variants) text += variant.asset.filename.at(0);
    return text + ')';
  }
  QString run(const QString& operation) {
    if (operation == "Delete") return operations.bulkDelete().value_or(QString());
    if (operation == "Group as Logo") return operations.groupAsLogo().value_or(QString());
    if (operation == "Duplicate") operations.bulkDuplicate();
    if (operation == "Move") operations.bulkMove(at(1).id);
    if (operation == "Move back") operations.bulkMove(at(0).id);
    if (operation == "Move nowhere") operations.bulkMove(QUuid::createUuid());
    return {};
  }
};

}  // namespace

class TestGroupOperations : public QObject {
  Q_OBJECT

 private slots:
  void operatesOnTheSelection_data() {
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("shape");
    QTest::addColumn<QString>("toast");
    const auto row = [](const char* operation, const char* selected, const char* shape,
                        const char* toast = "") {
      QTest::addRow("%s %s", operation, selected) << operation << selected << shape << toast;
    };
    const char* unchanged = "S:icjdhk T:le";
    row("Delete", "kc", "S:ijdh T:le", "Deleted 2 items · ⌘Z to undo");
    row("Delete", "h", "S:icjdk T:le", "Deleted 1 item · ⌘Z to undo");
    row("Delete", "icjdhk", "S: T:le", "Deleted 6 items · ⌘Z to undo");
    row("Delete", "i?", "S:cjdhk T:le", "Deleted 1 item · ⌘Z to undo");
    row("Delete", "?", unchanged);
    row("Delete", "", unchanged);
    row("Delete", "l", unchanged);  // of the other section
    row("Duplicate", "ki", "S:icjdhkik T:le");
    row("Duplicate", "", unchanged);
    row("Move", "kci", "S:jdh T:leick");
    row("Move", "icjdhk", "S: T:leicjdhk");
    row("Move back", "ic", "S:jdhkic T:le");
    row("Move nowhere", "ic", unchanged);
    row("Group as Logo", "kj", "S:ic(jk)dh T:le", "Grouped 2 into a logo · ⌘Z to undo");
    row("Group as Logo", "ijk", "S:(ijk)cdh T:le", "Grouped 3 into a logo · ⌘Z to undo");
    row("Group as Logo", "k", "S:icjdh(k) T:le", "Grouped 1 into a logo · ⌘Z to undo");
    row("Group as Logo", "cd", unchanged);
  }

  void operatesOnTheSelection() {
    QFETCH(QString, operation);
    QFETCH(QString, selected);
    QFETCH(QString, shape);
    Grouping grouping;
    const QString before = grouping.shape();
    grouping.select(selected);
    const QString toast = grouping.run(operation);
    QCOMPARE(grouping.shape(), shape);
    QTEST(toast, "toast");
    QVERIFY(grouping.selection.ids().isEmpty() && !grouping.selection.sectionID());
    QCOMPARE(grouping.history.canUndo(), shape != before);
    if (shape == before) return;
    QCOMPARE(grouping.history.undoActionName(), operation == "Move back" ? "Move" : operation);
    grouping.history.undo();
    QCOMPARE(grouping.shape(), before);
    QVERIFY(grouping.selection.ids().isEmpty());
    grouping.history.redo();
    QCOMPARE(grouping.shape(), shape);
  }

  void countsWhatIsThere() {
    const Cases<QString, int, int, bool> cases{
        {"nothing", "", 0, 0, false},
        {"one image", "i", 1, 1, false},
        {"two images", "ij", 2, 2, true},
        {"two images and a colour", "ijc", 2, 2, false},
        {"two colours", "cd", 0, 0, false},
        {"two images and one that has gone", "ij?", 2, 2, true},
        {"one image and one that has gone", "i?", 1, 1, false},
        {"what is elsewhere", "ijl", 2, 2, true}};
    cases.check([&](const QString& selected, int exportable, int images, bool canGroup) {
      Grouping grouping;
      grouping.select(selected);
      QCOMPARE(int(grouping.operations.exportableCount()), exportable);
      QCOMPARE(int(grouping.operations.selectedImageCount()), images);
      QCOMPARE(grouping.operations.canGroupAsLogo(), canGroup);
      grouping.document->edit([](Brand& brand) { brand.sections.removeFirst(); });
      QCOMPARE(grouping.operations.exportableCount(), 0);
      QVERIFY(!grouping.operations.canGroupAsLogo());
    });
  }

  void selectsAllInContext() {
    const Cases<QString, QString, int, int> cases{
        {"the selected section without its blocks", "ichj", "i", 0, 3},
        {"the first section", "ichj", "", 0, 3},
        {"the first section with tiles", "h", "", 1, 2},
        {"a section of blocks keeps its selection", "h", "h", 0, 1}};
    cases.check([&](const QString& s, const QString& selected, int section, int count) {
      Grouping grouping(s);
      grouping.select(selected);
      grouping.operations.selectAllInContext();
      QCOMPARE(grouping.selection.sectionID(), grouping.at(section).id);
      QCOMPARE(grouping.selection.count(), count);
    });
  }

  void duplicatesDifferInTheirIdsAlone() {
    Grouping grouping("");
    RandomBrand random(8);
    grouping.document->edit([&](Brand& brand) {
      for (int i = 0; i < 40; ++i) brand.sections[0].items.append(random.item());
    });
    QSet<QUuid> ids;
    for (const Item& item : grouping.at(0).items) {
      grouping.selection.toggle(item.id, grouping.at(0).id);
      ids << item.id;
    }
    grouping.operations.bulkDuplicate();
    const SharedList<Item>& items = grouping.at(0).items;
    QCOMPARE(items.size(), 80);
    for (qsizetype i = 0; i < 40; ++i) {
      Item copy = items.at(40 + i);
      QVERIFY(!ids.contains(copy.id));
      ids << copy.id;
      copy.id = items.at(i).id;
      QVERIFY(copy == items.at(i));
    }
  }

  void aGroupKeepsFilesAndNames() {
    Grouping grouping;
    grouping.document->edit([](Brand& brand) {
      Item& first = brand.sections[0].items[2];
      std::get<ImagePayload>(first.payload).name.reset();
      first.imageBackground = ImageBackground::dark;
      first.setUsageNotes({{QUuid::createUuid(), UsageKind::doRule, "note"}});
    });
    grouping.select("jk");
    (void)grouping.operations.groupAsLogo();
    const Item& item = grouping.at(0).items.at(2);
    const LogoValue& logo = std::get<LogoPayload>(item.payload).value;
    QCOMPARE(logo.name, "j file.png");
    QVERIFY(!item.imageBackground && !item.notes);
    QCOMPARE(logo.variants.size(), 2);
    QVERIFY(logo.variants[0].role == LogoRole::primary);
    QVERIFY(logo.variants[1].role == LogoRole::secondary);
    QCOMPARE(logo.variants[1].asset, (AssetRef{"k.png", "k file.png"}));
    QVERIFY(logo.variants[0].id != logo.variants[1].id && !logo.variants[0].background);
  }

  // Random operations on random selections lose and double nothing, and undo leads back through
  // all.
  void undoTakesBackWholeOperations() {
    RandomBrand random(21);
    const QStringList names{"Delete", "Duplicate", "Move", "Group as Logo"};
    for (int round = 0; round < 20; ++round) {
      Grouping grouping("", "");
      grouping.document->setBrand(random.brand(3, 100));
      QList<Brand> states{grouping.document->brand()};
      for (int step = 0; step < 8; ++step) {
        const int from = random.below(2);
        grouping.selection.clear();
        for (const Item& item : grouping.at(from).items) {
          if (random.below(5) == 0) grouping.selection.toggle(item.id, grouping.at(from).id);
        }
        const qsizetype selected = grouping.selection.count(),
                        images = grouping.operations.selectedImageCount();
        qsizetype before = 0, after = 0;
        for (const Section& each : grouping.document->brand().sections) before += each.items.size();
        const QString name = names.at(random.below(int(names.size())));
        (void)grouping.run(name);
        QSet<QUuid> ids;
        for (const Section& each : grouping.document->brand().sections) {
          after += each.items.size();
          for (const Item& item : each.items) ids << item.id;
        }
        const QHash<QString, qsizetype> change{{"Delete", -selected},
                                               {"Duplicate", selected},
                                               {"Group as Logo", images ? 1 - images : 0}};
        QCOMPARE(after - before, change.value(name));
        QCOMPARE(ids.size(), after);
        if (grouping.document->brand() != states.last()) states << grouping.document->brand();
      }
      while (states.size() > 1) {
        states.removeLast();
        grouping.history.undo();
        QVERIFY(grouping.document->brand() == states.last());
      }
      QVERIFY(!grouping.history.canUndo());
    }
  }

  void exportsTheSelectedFiles() {
    Grouping grouping;
    const QString temporary = grouping.disk.path("tmp");
    QVERIFY(QDir().mkpath(temporary) && qputenv("TMPDIR", QFile::encodeName(temporary)));
    for (const char* name : {"i", "j", "k"}) {
      QVERIFY(writeFile(Package::assetsPath(grouping.document->packageURL()) + '/' + name + ".png",
                        name));
    }
    QVERIFY(grouping.operations.selectedExportURLs(grouping.disk.files).isEmpty());
    grouping.select("kdi");
    const QStringList urls = grouping.operations.selectedExportURLs(grouping.disk.files);
    qunsetenv("TMPDIR");
    const QString folder = temporary + "/tarnloft-drag/";
    QCOMPARE(urls, QStringList({folder + "i file.png", folder + "k file.png"}));
    QCOMPARE(contentOf(urls.last()), "k");
  }
};

QTEST_GUILESS_MAIN(TestGroupOperations)
#include "tst_groupoperations.moc"
