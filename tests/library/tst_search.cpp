#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestLibrary.h"
#include "workspace/Items.h"

#include <QTest>

using namespace tarnloft;

namespace {

QList<BrandAtURL> twoBrands() {
  Brand acme = Brand::create("Acme"), beta = Brand::create("Beta");
  acme.sections = {
      sectionOf(
          "Logos",
          {Item::create(ImagePayload{{"1.png", "x.png"}, "Primary Logo"}),
           Item::create(ColorPayload{{"#123456", "Brand Blue", "PMS 021 C"}}),
           Item::create(LogoPayload{{"Set", {{{}, {"m.svg", "m.svg"}, LogoRole::wordmark, {}}}}})}),
      sectionOf("", {Item::create(TextPayload{"überblau"})})};
  beta.sections = {sectionOf("Brand Colors", {Item::create(GradientPayload{{{}, 0, "Sunset"}})})};
  return {{"/tmp/A.tarnloft", acme}, {"/tmp/B.tarnloft", beta}};
}

}  // namespace

class TestSearch : public QObject {
  Q_OBJECT

 private slots:
  void findsWhatTheRulesTell() {
    const Cases<QString, QStringList> cases{
        {"section first", "logo", QStringList{"Logos", "Primary Logo", "Set"}},
        {"both brands", "brand", QStringList{"Brand Blue", "Brand Colors"}},
        {"any case, trimmed", "  PRIMARY\n", QStringList{"Primary Logo"}},
        {"blanks", "   ", QStringList{}},
        {"type", "color", QStringList{"Brand Blue", "Brand Colors"}},
        {"spot", "pms 021", QStringList{"Brand Blue"}},
        {"no label of a nameless section", "untitled", QStringList{}},
        {"beyond ASCII", "ÜBER", QStringList{"überblau"}},
        {"decomposed", "u\u0308berbl", QStringList{"überblau"}},
        {"not across tokens", "LogoImage", QStringList{}}};
    cases.check([&](const QString& query, const QStringList& titles) {
      QStringList found;
      for (const SearchHit& hit : searchHits(twoBrands(), query)) found << hit.title;
      QCOMPARE(found, titles);
    });
  }

  // Enough packages for several threads, some of which can't be read.
  void findsInALibraryWhatItsBrandsHold() {
    TestLibrary library;
    QHash<QString, Brand> brands;
    for (int i = 0; i < 50; ++i) {
      const QString name = QString::number(i);
      brands[library.packagePath(name)] =
          library.add(name, RandomBrand(quint32(i)).brand(2, 9).sections);
      if (i % 7) continue;
      brands.remove(library.packagePath(name));
      QVERIFY(writeFile(Package::manifestPath(library.packagePath(name)),
                        "{\"name\":\"" + name.toUtf8() + "\"}"));
    }
    LibraryStore& store = library.start();
    QCOMPARE(store.brands().size(), 50);
    store.select(library.packagePath("0"));
    QList<BrandAtURL> inOrder;
    for (const BrandSummary& row : store.brands()) {
      QCOMPARE(row.name, QFileInfo(row.packageURL).completeBaseName());
      const auto brand = brands.constFind(row.packageURL);
      QCOMPARE(row.brandID == brands.value(row.packageURL).id, brand != brands.cend());
      if (brand != brands.cend()) inOrder << BrandAtURL{row.packageURL, *brand};
    }
    for (const QString& query : QStringList{"mark 1", "lane", "color"}) {
      QVERIFY(!searchHits(inOrder, query).isEmpty());
      QCOMPARE(store.searchAllBrands(query), searchHits(inOrder, query));
      QCOMPARE(store.searchAllBrands(query), searchHits(inOrder, query));
    }
  }

  void searchesUnsavedEditsAndWhatChangedOnDisk() {
    TestLibrary library;
    library.add("A");
    Brand b = library.add("B");
    QVERIFY(QDir().mkpath(library.packagePath("Bad")));
    LibraryStore& store = library.start();
    const auto count = [&](const QString& query) { return store.searchAllBrands(query).size(); };
    QCOMPARE(count("logos"), 2);
    store.openDocument()->edit([](Brand& brand) { brand.sections[1].name = "Marks"; });
    QCOMPARE(count("logos"), 1);
    QCOMPARE(count("marks"), 1);
    b.sections[0].name = "Marks";
    library.save("B", b);
    QCOMPARE(count("marks"), 2);
    QVERIFY(writeFile(Package::manifestPath(library.packagePath("B")), "{"));
    QCOMPARE(count("marks"), 1);
    library.save("Bad", b);
    QCOMPARE(count("marks"), 2);
    QVERIFY(QDir(library.packagePath("Bad")).removeRecursively());
    QCOMPARE(count("marks"), 1);
  }
};

QTEST_GUILESS_MAIN(TestSearch)
#include "tst_search.moc"
