#include "platform/desktop/files/DiskThread.h"
#include "testing/Cases.h"
#include "testing/TestLibrary.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;
using namespace std::chrono_literals;

namespace {

// The real disk, which is full where the library is, or doesn't answer when the test says so.
class BadDisk : public PosixFileStore {
 public:
  bool isFull = false;
  mutable QSemaphore gate{1000};  // each look into a folder passes

  Result<std::unique_ptr<FileWriter>> createTemporary(const QString& target) override {
    if (isFull && target.contains("/Tarn Loft/"))
      return failure(ErrorKind::io, "No space left on device");
    return PosixFileStore::createTemporary(target);
  }
  Result<QStringList> listAll(const QString& folder) const override {
    gate.acquire();
    return PosixFileStore::listAll(folder);
  }
};

struct Safe {
  TestLibrary library;
  BadDisk disk;

  Safe() {
    library.files = &disk;
    for (const char* name : {"Acme", "Beta"}) library.add(name);
    library.start();
  }
  LibraryStore& store() { return *library.store; }
  BrandDocument* open() { return store().openDocument(); }
  void accent(const QString& hex) {
    open()->edit([&](Brand& brand) { brand.accentHex = hex; });
  }
  QString accentOnDisk(const QString& package) const {
    const auto brand = decode<Brand>(contentOf(Package::manifestPath(package)));
    return brand ? brand->accentHex.value_or(QString()) : QString();
  }
  BrandSummary row(const QString& name) {
    for (const auto& row : store().brands()) {
      if (row.name == name) return row;
    }
    return {};
  }
};

}  // namespace

// Nothing that the user did is lost, and nothing waits for a disk, whatever happens around.
class TestSafety : public QObject {
  Q_OBJECT

 private slots:
  void changesAreOnDiskBeforeTheirDocumentGoes() {
    const Cases<std::function<void(Safe&)>, QString> cases{
        {"another is selected",
         [](Safe& safe) { safe.store().select(safe.library.packagePath("Beta")); }, "Acme"},
        {"another is made", [](Safe& safe) { safe.store().createBrand("New"); }, "Acme"},
        {"it is duplicated", [](Safe& safe) { safe.store().duplicateBrand(safe.row("Acme")); },
         "Acme Copy"},
        {"it is thrown away", [](Safe& safe) { safe.store().deleteBrand(safe.row("Acme")); },
         "../../trash/Acme"},
        {"the library moves",
         [](Safe& safe) { safe.store().setLibraryURL(safe.library.disk.path("other")); }, "Acme"},
        {"the program ends", [](Safe& safe) { QVERIFY(safe.store().flush(1s)); }, "Acme"}};
    cases.check([&](const std::function<void(Safe&)>& go, const QString& package) {
      Safe safe;
      safe.accent("#123456");
      go(safe);
      QCOMPARE(safe.accentOnDisk(safe.library.packagePath(package)), "#123456");
    });
  }

  void workThatCannotBeSavedIsKept() {
    Safe safe;
    const QString acme = safe.library.packagePath("Acme");
    const auto& notices = safe.store().notices();
    safe.accent("#123456");
    safe.disk.isFull = true;
    safe.store().renameSelectedBrand("Renamed");
    QVERIFY(QDir(acme).exists());
    QCOMPARE(notices.size(), 1);
    safe.store().duplicateBrand(safe.row("Acme"));
    QCOMPARE(notices.size(), 2);
    safe.store().select(safe.library.packagePath("Beta"));
    QVERIFY(!safe.store().flush(0s));
    safe.store().retrySaves();
    QCoreApplication::processEvents();
    QCOMPARE(safe.store().unsavedBrands(), QStringList("Renamed"));
    safe.store().select(acme);
    QCOMPARE(safe.open()->brand().accentHex, "#123456");
    QCOMPARE(safe.open()->saveProblem(), "No space left on device");
    safe.store().select(safe.library.packagePath("Beta"));
    // Also when the library has moved away from it, which is told.
    safe.store().setLibraryURL(safe.library.disk.path("other"));
    QCOMPARE(notices.size(), 3);
    QVERIFY(notices.last().message.contains(safe.library.folder));
    safe.disk.isFull = false;
    safe.store().retrySaves();
    QCOMPARE(safe.accentOnDisk(acme), "#123456");
    QTRY_VERIFY(safe.store().unsavedBrands().isEmpty());
  }

  void aPackageRenamedElsewhereIsFollowed() {
    const Cases<bool, bool> cases{{"found by the save", false, false},
                                  {"found by a scan", true, false},
                                  {"a twin, found by the save", false, true},
                                  {"a twin, found by a scan", true, true}};
    cases.check([&](bool scansFirst, bool hasTwin) {
      Safe safe;
      const QString before = safe.library.packagePath("Acme"),
                    now = safe.library.packagePath("Moved");
      if (hasTwin) {
        QVERIFY(safe.disk.copyFolder(before, safe.library.packagePath("Acme copy")));
        safe.store().scan();
      }
      QVERIFY(QDir().rename(before, now));
      if (scansFirst) safe.store().scan();
      safe.accent("#123456");
      safe.open()->saveNow();
      QCOMPARE(safe.accentOnDisk(now), "#123456");
      QVERIFY(!QDir(before).exists());
      QCOMPARE(safe.open()->packageURL(), now);
      QCOMPARE(safe.store().selection(), now);
      QCOMPARE(safe.library.names(),
               hasTwin ? QStringList({"Acme", "Beta", "Acme"}) : QStringList({"Acme", "Beta"}));
    });
  }

  void aPackageThatIsNowhereIsMadeAgainAndTold() {
    Safe safe;
    const QString acme = safe.library.packagePath("Acme");
    // A copy that was there before is another brand.
    QVERIFY(safe.disk.copyFolder(acme, safe.library.packagePath("Acme (copy)")));
    safe.store().scan();
    const auto& notices = safe.store().notices();
    safe.store().select(acme);
    QVERIFY(QDir(acme).removeRecursively());
    safe.accent("#123456");
    safe.open()->saveNow();
    QCOMPARE(safe.accentOnDisk(acme), "#123456");
    QCOMPARE(safe.accentOnDisk(safe.library.packagePath("Acme (copy)")), "");
    QCOMPARE(notices.size(), 1);
  }

  void aBareMountPointGetsNothing() {
    Safe safe;
    const QString folder = safe.library.folder, disk = safe.library.disk.path("unplugged");
    QVERIFY(QDir().rename(folder, disk) && QDir().mkpath(folder));
    safe.accent("#123456");
    safe.open()->saveNow();
    QVERIFY(!safe.open()->importImageData("x", "x", "png"));
    QVERIFY(!safe.store().createBrand("New"));
    safe.store().scan();
    QVERIFY(QDir(folder).isEmpty());
    QVERIFY(!safe.open()->saveProblem().isEmpty() && !safe.store().libraryProblem().isEmpty());
    QCOMPARE(safe.library.names(), QStringList({"Acme", "Beta"}));
    QVERIFY(QDir().rmdir(folder) && QDir().rename(disk, folder));
    safe.store().retrySaves();
    safe.store().scan();
    QCOMPARE(safe.accentOnDisk(safe.library.packagePath("Acme")), "#123456");
    QVERIFY(safe.store().libraryProblem().isEmpty());
  }

  void packagesWithOneIdAreToldApart() {
    Safe safe;
    const QUuid shared = safe.row("Acme").brandID;
    const QString second = safe.library.packagePath("Acme2");
    QVERIFY(safe.disk.copyFolder(safe.library.packagePath("Acme"), second));
    safe.store().scan();
    QSet<QUuid> ids;
    for (const BrandSummary& row : safe.store().brands()) ids << row.brandID;
    QCOMPARE(ids.size(), 3);
    const auto place = [&](const QString& package) {
      const auto& rows = safe.store().brands();
      return std::ranges::find(rows, package, &BrandSummary::packageURL) - rows.begin();
    };
    safe.store().moveBrand(safe.store().brands().at(place(second)).brandID, shared);
    QVERIFY(place(second) < place(safe.library.packagePath("Acme")));
    safe.library.start();
    QVERIFY(place(second) < place(safe.library.packagePath("Acme")));
    const auto idOnDisk = [&](const QString& package) {
      return decode<Brand>(contentOf(Package::manifestPath(package)))->id;
    };
    QCOMPARE(idOnDisk(second), shared);
    for (const char* name : {"Acme2", "Acme"}) {
      safe.store().select(safe.library.packagePath(name));
      safe.accent("#123456");
      safe.open()->saveNow();
    }
    QVERIFY(idOnDisk(second) != shared);
    QCOMPARE(idOnDisk(safe.library.packagePath("Acme")), shared);
  }

  void hiddenPackagesAreListed() {
    Safe safe;
    safe.library.add(".Hidden");
    QVERIFY(writeFile(safe.library.packagePath("._Acme"), "x"));
    QVERIFY(QDir().mkpath(safe.library.folder + "/.tarnloft-0abc"));
    safe.store().scan();
    QCOMPARE(safe.library.names(), QStringList({"Acme", "Beta", ".Hidden"}));
  }

  void aBrandStaysWhereThereIsNoTrash() {
    Safe safe;
    safe.library.trash.works = false;
    QSignalSpy refused(safe.library.store.get(), &LibraryStore::trashRefused);
    const QString acme = safe.library.packagePath("Acme");
    safe.store().deleteBrand(safe.row("Acme"));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(safe.store().selection(), acme);
    safe.accent("#123456");
    safe.open()->saveNow();
    QCOMPARE(safe.accentOnDisk(acme), "#123456");
    safe.accent("#654321");
    safe.store().deleteBrandImmediately(safe.row("Acme"));
    QVERIFY(!QDir(acme).exists());
    QTest::qWait(600);  // past the delay of a save
    QVERIFY(!QDir(acme).exists());
    QCOMPARE(safe.library.names(), QStringList("Beta"));
  }

  void itemsFindTheirBrandWhereverItIs() {
    Safe safe;
    const BrandPlace acme{safe.library.packagePath("Acme"), safe.row("Acme").brandID};
    const QUuid section = safe.open()->brand().sections.first().id;
    const auto add = [&] {
      safe.store().addItems(acme, section, {Item::create(TextPayload{"x"})});
    };
    add();
    safe.store().renameSelectedBrand("Renamed");
    add();
    safe.store().select(safe.library.packagePath("Beta"));
    add();
    const auto saved =
        decode<Brand>(contentOf(Package::manifestPath(safe.library.packagePath("Renamed"))));
    QCOMPARE(saved->sections.first().items.size(), 3);
  }

  void aDiskThatDoesNotAnswerHoldsNothingUp() {
    TestLibrary library;
    BadDisk disk;
    DiskThread thread;
    library.files = &disk;
    for (const char* name : {"Acme", "Beta"}) library.add(name);
    library.work = &thread;
    disk.gate.acquire(1000);
    LibraryStore* const store = &library.start();  // or it would stay in here for ever
    QVERIFY(store->isOpening() && store->brands().isEmpty());
    QTRY_VERIFY(!store->libraryProblem().isEmpty());
    disk.gate.release(1000);
    QTRY_COMPARE(store->brands().size(), 2);
    QVERIFY(store->libraryProblem().isEmpty() && store->openDocument());
    store->openDocument()->edit([](Brand& brand) { brand.accentHex = "#123456"; });
    QVERIFY(store->flush(5s));
    library.store.reset();
  }
};

QTEST_GUILESS_MAIN(TestSafety)
#include "tst_safety.moc"
