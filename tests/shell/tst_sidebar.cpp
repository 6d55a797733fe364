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

  Sidebar& start(const QStringList& brands = {}) {
    for (const QString& brand : brands) library.add(brand);
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
    SidebarModel& rows = *sidebar.rows();
    QStringList told;
    connect(&rows, &SidebarModel::rowsInserted, this, [&] { told << "inserted"; });
    connect(&rows, &SidebarModel::rowsRemoved, this, [&] { told << "removed"; });
    connect(&rows, &SidebarModel::rowsMoved, this, [&] { told << "moved"; });
    connect(&rows, &SidebarModel::dataChanged, this, [&] { told << "changed"; });
    connect(&rows, &SidebarModel::modelReset, this, [&] { told << "reset"; });
    sidebar.beginDrag(test.id("Cedar"));
    for (int times = 0; times < 2; ++times) sidebar.dragEntered(test.id("Acme"));
    QCoreApplication::processEvents();
    QCOMPARE(std::exchange(told, {}), QStringList("moved"));
    QCOMPARE(test.texts().first(), "Cedar");
    sidebar.select(test.library.packagePath("Birch"));
    QCoreApplication::processEvents();
    // Two brands look different, one run of sections goes and one comes.
    told.sort();
    QCOMPARE(told, QStringList({"changed", "changed", "inserted", "removed"}));
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
    test.start({"Acme", "Birch"}).rename(test.library.packagePath("Birch"));
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
    Sidebar& sidebar = test.start({"Acme", "Birch", "Cedar"});
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
