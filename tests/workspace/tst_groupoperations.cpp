#include "document/UndoHistory.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestDocument.h"
#include "workspace/selection/GroupOperations.h"

#include <QTest>

using namespace tarnloft;

namespace {

// Sections S and T. An item is a letter: i to n are images, c to e colours, h a header.
struct Grouping : TestDocument {
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
  void operatesOnTheSelection() {
    struct Operation {
      const char *name, *selected, *shape, *toast = "";
    };
    const char* unchanged = "S:icjdhk T:le";
    for (const Operation& each : QList<Operation>{
             {"Delete", "kc", "S:ijdh T:le", "Deleted 2 items · ⌘Z to undo"},
             {"Delete", "h", "S:icjdk T:le", "Deleted 1 item · ⌘Z to undo"},
             {"Delete", "icjdhk", "S: T:le", "Deleted 6 items · ⌘Z to undo"},
             {"Delete", "i?", "S:cjdhk T:le", "Deleted 1 item · ⌘Z to undo"},
             {"Delete", "?", unchanged},
             {"Delete", "", unchanged},
             {"Delete", "l", unchanged},  // of the other section
             {"Duplicate", "ki", "S:icjdhkik T:le"},
             {"Duplicate", "", unchanged},
             {"Move", "kci", "S:jdh T:leick"},
             {"Move", "icjdhk", "S: T:leicjdhk"},
             {"Move back", "ic", "S:jdhkic T:le"},
             {"Move nowhere", "ic", unchanged},
             {"Group as Logo", "kj", "S:ic(jk)dh T:le", "Grouped 2 into a logo · ⌘Z to undo"},
             {"Group as Logo", "ijk", "S:(ijk)cdh T:le", "Grouped 3 into a logo · ⌘Z to undo"},
             {"Group as Logo", "k", "S:icjdh(k) T:le", "Grouped 1 into a logo · ⌘Z to undo"},
             {"Group as Logo", "cd", unchanged}}) {
      Grouping grouping;
      grouping.select(each.selected);
      QCOMPARE(grouping.run(each.name), each.toast);
      QCOMPARE(grouping.shape(), each.shape);
      QVERIFY(grouping.selection.ids().isEmpty() && !grouping.selection.sectionID());
      const bool isStep = QString(each.shape) != unchanged;
      QCOMPARE(grouping.history.canUndo(), isStep);
      if (!isStep) continue;
      QVERIFY(QString(each.name).startsWith(grouping.history.undoActionName()));
      grouping.history.undo();
      QCOMPARE(grouping.shape(), unchanged);
      grouping.history.redo();
      QCOMPARE(grouping.shape(), each.shape);
    }
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
};

QTEST_GUILESS_MAIN(TestGroupOperations)
#include "tst_groupoperations.moc"
