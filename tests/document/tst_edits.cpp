#include "document/UndoHistory.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestDocument.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

struct Editing : TestDocument {
  UndoHistory history;

  // Sections "S" with items a, b, c and "T" with d; ids by name.
  Editing() {
    Section s = Section::create("S"), t = Section::create("T");
    for (const QString& name : QStringList{"a", "b", "c"})
      s.items.append(Item::create(TextPayload{name}));
    t.items.append(Item::create(TextPayload{"d"}));
    document->edit([&](Brand& brand) { brand.sections = {s, t}; });
  }
  QUuid id(const QString& name) const {
    for (const Section& section : document->brand().sections) {
      if (section.name == name) return section.id;
      for (const Item& item : section.items) {
        if (item.displayName() == name) return item.id;
      }
    }
    return QUuid::createUuid();  // of nothing
  }
  std::optional<QUuid> optionalId(const QString& name) const {
    return name.isEmpty() ? std::nullopt : std::optional(id(name));
  }
  QString shape() const { return shapeOf(document->brand()); }
};

}  // namespace

class TestEdits : public QObject {
  Q_OBJECT

 private slots:
  void movesItems() {
    const Cases<QString, QString, QString, QString> cases{
        {"to the front", "c", "S", "a", "S:cab T:d"},
        {"to the end", "a", "S", "", "S:bca T:d"},
        {"across", "b", "T", "d", "S:ac T:bd"},
        {"before one that is elsewhere", "b", "T", "c", "S:ac T:db"},
        {"to no section", "b", "?", "", "S:abc T:d"},
        {"no item", "?", "T", "", "S:abc T:d"}};
    cases.check([&](const QString& item, const QString& section, const QString& before,
                    const QString& shape) {
      Editing editing;
      editing.document->moveItem(editing.id(item), editing.id(section), editing.optionalId(before));
      QCOMPARE(editing.shape(), shape);
    });
  }

  void undoAndRedoWalkThroughWholeBrands() {
    Editing editing;
    RandomBrand random(5);
    QList<Brand> states{editing.document->brand()};
    for (int i = 0; i < 20; ++i) {
      editing.document->mutate(QString::number(i), &editing.history, [&](Brand& brand) {
        brand.sections[random.below(int(brand.sections.size()))].items.append(random.item());
      });
      states << editing.document->brand();
    }
    qsizetype at = states.size() - 1;
    for (int i = 0; i < 200; ++i) {
      const bool back = random.below(2) == 0;
      if (back && at > 0) QCOMPARE(editing.history.undoActionName(), QString::number(at - 1));
      back ? editing.history.undo() : editing.history.redo();
      at = std::clamp<qsizetype>(back ? at - 1 : at + 1, 0, states.size() - 1);
      QVERIFY(editing.document->brand() == states.at(at));
      QCOMPARE(editing.history.canUndo(), at > 0);
      QCOMPARE(editing.history.canRedo(), at < states.size() - 1);
    }
    editing.history.undo();
    editing.document->mutate("new", &editing.history, [](Brand& brand) { brand.name = "new"; });
    QVERIFY(!editing.history.canRedo());
  }

  void undoKeepsWhatCameSince() {
    Editing editing;
    const auto remove = [&](qsizetype place) {
      editing.document->mutate("Delete", &editing.history,
                               [&](Brand& brand) { brand.sections[0].items.takeAt(place); });
    };
    const auto import = [&](const QString& name) {
      editing.document->addItem(Item::create(TextPayload{name}), editing.id("S"));
    };
    remove(1);
    import("x");
    remove(0);
    editing.document->saveNow();
    editing.history.undo();
    import("y");
    editing.history.undo();
    QCOMPARE(editing.shape(), "S:abcxy T:d");
    editing.history.redo();
    import("z");
    editing.history.redo();
    QCOMPARE(editing.shape(), "S:cxyz T:d");
    editing.history.undo();
    QCOMPARE(editing.shape(), "S:acxyz T:d");
  }

  void aChangeThatChangesNothingIsNoStep() {
    Editing editing;
    editing.document->saveNow();
    QSignalSpy changes(editing.document.get(), &BrandDocument::brandChanged);
    editing.document->mutate("Delete", &editing.history, [](Brand& brand) {
      brand.sections[0].items[0] = Item(brand.sections[0].items.at(0));
    });
    QVERIFY(changes.isEmpty() && !editing.history.canUndo());
  }

  void undoOutlivesTheDocument() {
    Editing editing;
    editing.document->mutate("Delete", &editing.history, [](Brand& brand) { brand.name = "x"; });
    editing.document.reset();
    editing.history.undo();
    QVERIFY(!editing.history.canRedo());
  }

  void importsFiles() {
    const Cases<QString, QString> cases{
        {"plain", "Mark.PNG", "PNG"}, {"none", "Mark", "dat"}, {"odd", "a b ü.tar.gz", "gz"}};
    cases.check([&](const QString& name, const QString& extension) {
      Editing editing;
      const QByteArray content(3'000'000, 'x');
      QVERIFY(writeFile(editing.disk.path(name), content));
      QVERIFY(QDir(Package::assetsPath(editing.document->packageURL())).removeRecursively());
      const auto asset = editing.document->importAsset(editing.disk.path(name));
      QVERIFY(asset);
      QCOMPARE(asset->originalName, name);
      const QRegularExpression form("^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\." + extension +
                                    '$');
      QVERIFY2(form.match(asset->filename).hasMatch(), qPrintable(asset->filename));
      const QString assets = Package::assetsPath(editing.document->packageURL()) + '/';
      QCOMPARE(contentOf(assets + asset->filename), content);
      const auto pasted = editing.document->importImageData("bytes", "Pasted", extension);
      QCOMPARE(pasted->originalName, "Pasted");
      QCOMPARE(contentOf(assets + pasted->filename), "bytes");
    });
  }

  void importsNothingThroughALinkThatLeadsOut() {
    Editing editing;
    const QString assets = Package::assetsPath(editing.document->packageURL());
    const QString outside = editing.disk.path("outside");
    QVERIFY(QDir().mkpath(outside) && QDir(assets).removeRecursively());
    QVERIFY(QFile::link(outside, assets));
    QVERIFY(writeFile(editing.disk.path("a.png"), "x"));
    QVERIFY(!editing.document->importAsset(editing.disk.path("a.png")));
    QVERIFY(!editing.document->importImageData("x", "x", "png"));
    QVERIFY(QDir(outside).isEmpty());
  }
};

QTEST_GUILESS_MAIN(TestEdits)
#include "tst_edits.moc"
