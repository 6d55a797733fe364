#include "controls/sheets/NameSheet.h"
#include "shell/sidebar/Sidebar.h"
#include "testing/Cases.h"
#include "workspace/TestWorkspace.h"

#include <QAbstractItemModelTester>
#include <QColor>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

Section section(const QString& name) { return Section::create(name); }

struct SidebarTest : TestDesktop {
  SheetHost sheets;
  std::unique_ptr<Sidebar> sidebar;
  std::unique_ptr<QAbstractItemModelTester> tester;

  Sidebar& start() {
    library.start();
    sidebar = std::make_unique<Sidebar>(services(), sheets);
    tester = std::make_unique<QAbstractItemModelTester>(
        sidebar->rows(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    return *sidebar;
  }
  QStringList texts() const {
    QStringList result;
    for (const SidebarModel::Row& row : sidebar->rows()->rows()) {
      const QString indent = row.kind == SidebarModel::Kind::Section ? "  " : "";
      result << indent + row.name + (row.selected ? " *" : "");
    }
    return result;
  }
  QVariant value(const QString& name, SidebarModel::Role role) const {
    const SidebarModel& rows = *sidebar->rows();
    const QModelIndexList found = rows.match(rows.index(0), SidebarModel::name, name);
    return found.isEmpty() ? QVariant() : found.first().data(role);
  }
  QString id(const QString& name) const { return value(name, SidebarModel::rowID).toString(); }
};

// Counts each signal by which a model tells of a change.
struct Signals {
  explicit Signals(SidebarModel& model)
      : inserted(&model, &SidebarModel::rowsInserted),
        removed(&model, &SidebarModel::rowsRemoved),
        moved(&model, &SidebarModel::rowsMoved),
        changed(&model, &SidebarModel::dataChanged),
        reset(&model, &SidebarModel::modelReset) {}
  QSignalSpy inserted, removed, moved, changed, reset;

  QList<qsizetype> counts() const {
    return {inserted.size(), removed.size(), moved.size(), changed.size(), reset.size()};
  }
};

}  // namespace

class TestSidebar : public QObject {
  Q_OBJECT

 private slots:
  void tellsOfMarksAndAccents() {
    SidebarTest test;
    Brand plain = Brand::create("Plain");
    plain.emblem = Emblem{};
    test.library.save("Plain", plain);
    Brand tinted = Brand::create("Tinted");
    tinted.accentHex = "#11223380";
    tinted.accentHexDark = "no colour";
    test.library.save("Tinted", tinted);
    Sidebar& sidebar = test.start();
    QCOMPARE(test.value("Plain", SidebarModel::marked), false);
    QCOMPARE(test.value("Tinted", SidebarModel::marked), true);
    const auto look = [&] { return test.value("Tinted", SidebarModel::look).value<EmblemLook>(); };
    QCOMPARE(look().text, "T");
    QCOMPARE(look().color.rgba(), 0x80112233u);
    sidebar.rows()->setAppearance(ColorUtil::Appearance::dark);
    QCoreApplication::processEvents();
    QCOMPARE(look().color, QColor(0x8e8e93));
  }

  void aChangeMovesNoMoreThanItMust() {
    SidebarTest test;
    for (const char* name : {"Acme", "Birch", "Cedar"}) {
      test.library.add(name, {section("A"), section("B"), section("C")});
    }
    Sidebar& sidebar = test.start();
    {
      Signals told(*sidebar.rows());
      sidebar.beginDrag(test.id("Cedar"));
      sidebar.dragEntered(test.id("Acme"));
      sidebar.dragEntered(test.id("Acme"));
      QCoreApplication::processEvents();
      QCOMPARE(told.counts(), QList<qsizetype>({0, 0, 1, 0, 0}));
      QCOMPARE(test.texts().first(), "Cedar");
    }
    Signals told(*sidebar.rows());
    sidebar.select(test.library.packagePath("Birch"));
    QCoreApplication::processEvents();
    // Two brands look different, one run of sections goes and one comes.
    QCOMPARE(told.counts(), QList<qsizetype>({1, 1, 0, 2, 0}));
  }

  void followsAnyChange() {
    SidebarTest test;
    for (int i = 0; i < 6; ++i) test.library.add("Brand " + QString::number(i), {section("S")});
    Sidebar& sidebar = test.start();
    LibraryStore& store = *test.library.store;
    QRandomGenerator random(3);
    for (int step = 0; step < 200; ++step) {
      const QList<BrandSummary> brands = store.brands();
      const BrandSummary& any = brands.at(random.bounded(int(brands.size())));
      switch (random.bounded(7)) {
        case 0: sidebar.select(any.packageURL); break;
        case 1: store.moveBrand(any.brandID, brands.first().brandID); break;
        case 2: store.moveBrand(any.brandID, std::nullopt); break;
        case 3:
          brands.size() < 9 ? sidebar.duplicate(any.packageURL) : store.deleteBrand(any);
          break;
        case 4:
          if (!store.openDocument()) break;
          store.openDocument()->edit([&](Brand& b) { b.sections.prepend(section("More")); });
          break;
        case 5: sidebar.moveUp(test.id(any.name)); break;
        case 6: sidebar.moveDown(test.id(any.name)); break;
      }
      if (random.bounded(3) == 0) continue;  // several changes in one turn
      QCoreApplication::processEvents();
      const SidebarModel anew(store);
      QCOMPARE(sidebar.rows()->rows(), anew.rows());
    }
  }

  void renamesTheBrandThatWasAsked() {
    SidebarTest test;
    test.library.add("Acme");
    test.library.add("Birch");
    test.start().rename(test.library.packagePath("Birch"));
    auto* const sheet = qobject_cast<NameSheet*>(test.sheets.current());
    QCOMPARE(sheet->text(), "Birch");
    sheet->setText(" Cedar ");
    sheet->confirm();
    QVERIFY(!test.sheets.current());
    QCOMPARE(test.library.names(), QStringList({"Acme", "Cedar"}));
    QCOMPARE(test.library.store->selection(), test.library.packagePath("Cedar"));
  }

  // Removed, or renamed, by another machine.
  void whatIsAskedAboutABrandGoesWithIt() {
    SidebarTest test;
    for (const char* name : {"Acme", "Birch", "Cedar"}) test.library.add(name);
    Sidebar& sidebar = test.start();
    sidebar.rename(test.library.packagePath("Birch"));
    sidebar.moveToTrash(test.library.packagePath("Acme"));
    const QPointer<SheetModel> rename = test.sheets.current();
    QDir(test.library.packagePath("Acme")).removeRecursively();
    test.library.store->scan();
    QCOMPARE(test.sheets.current(), rename);
    QDir(test.library.packagePath("Birch")).removeRecursively();
    test.library.store->scan();
    QVERIFY(!test.sheets.current());
    QTRY_VERIFY(!rename);
    const QString gone = test.library.packagePath("Birch");  // whose menu may still be open
    sidebar.rename(gone);
    sidebar.moveToTrash(gone);
    QVERIFY(!test.sheets.current());
    sidebar.duplicate(gone);
    sidebar.exportFile(gone);
    sidebar.exportPage(gone);
    QCOMPARE(test.library.names(), QStringList("Cedar"));
  }
};

QTEST_GUILESS_MAIN(TestSidebar)
#include "tst_sidebar.moc"
