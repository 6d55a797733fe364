#include "document/BrandDocument.h"
#include "document/Package.h"
#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestServices.h"

#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

std::unique_ptr<BrandDocument> newDocument(TestServices& disk, const char* name = "Acme") {
  auto document =
      BrandDocument::create(disk.services(), disk.folder.path(), QString::fromUtf8(name));
  return document ? std::move(*document) : nullptr;
}

void rename(BrandDocument& document, const char* name) {
  document.edit([&](Brand& brand) { brand.name = QString::fromUtf8(name); });
}

QString nameOnDisk(const BrandDocument& document) {
  const auto brand = decode<Brand>(contentOf(Package::manifestPath(document.packageURL())));
  return brand ? brand->name : "(unreadable)";
}

}  // namespace

class TestDocument : public QObject {
  Q_OBJECT

 private slots:
  void createsAPackage() {
    TestServices disk;
    const auto document = newDocument(disk, " Acme/Co ");
    QVERIFY(document);
    const QDir package(document->packageURL());
    QCOMPARE(package.dirName(), "Acme-Co.tarnloft");
    QCOMPARE(package.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({"assets", "manifest.json", "thumbnails"}));
    const auto read = BrandDocument::load(disk.services(), document->packageURL());
    QVERIFY(read);
    QCOMPARE(read->brand().name, " Acme/Co ");
    QCOMPARE(read->brand().id, document->brand().id);
    QCOMPARE(read->brand().sections, document->brand().sections);
    QCOMPARE(read->brand().sections.size(), 2);
    QCOMPARE(iso8601(read->brand().createdAt), std::string("2026-03-01T09:31:00Z"));
  }

  void savesABurstOnceBehindItsLastEdit() {
    TestServices disk;
    const auto document = newDocument(disk);
    QSignalSpy changes(document.get(), &BrandDocument::brandChanged);
    for (int i = 0; i < 4; ++i) {
      rename(*document, "Edited");
      QTest::qWait(150);  // longer in all than one delay
      QCOMPARE(nameOnDisk(*document), "Acme");
    }
    QCOMPARE(changes.size(), 4);
    QTRY_COMPARE_WITH_TIMEOUT(nameOnDisk(*document), "Edited", 2000);
    QCOMPARE(changes.size(), 4);  // a save's date is no news
    QVERIFY(disk.log.lines.isEmpty());
  }

  // Neither when all is saved, nor with a change too young to be saved when its document goes, nor
  // once it is dead.
  void nothingIsWrittenLater() {
    TestServices disk;
    const auto saved = newDocument(disk), dead = newDocument(disk);
    auto gone = newDocument(disk);
    const QString manifest = Package::manifestPath(gone->packageURL());
    for (BrandDocument* document : {saved.get(), dead.get(), gone.get()}) {
      rename(*document, "Edited");
    }
    saved->saveNow();
    dead->invalidate();
    for (BrandDocument* document : {saved.get(), dead.get()}) {
      QVERIFY(QDir(document->packageURL()).removeRecursively());
    }
    rename(*dead, "changed");
    dead->saveNow();
    gone.reset();
    QTest::qWait(600);
    QVERIFY(!disk.files.exists(saved->packageURL()) && !disk.files.exists(dead->packageURL()));
    QCOMPARE(dead->brand().name, "changed");
    QCOMPARE(decode<Brand>(contentOf(manifest))->name, "Acme");
  }

  void refusesAManifestBeyondAllBrands() {
    TestServices disk;
    const QString manifest = Package::manifestPath(disk.path("Huge.tarnloft"));
    QVERIFY(writeFile(manifest, *encode(Brand::create("x")) + QByteArray(1 << 20, ' ')));
    QVERIFY(BrandDocument::load(disk.services(), disk.path("Huge.tarnloft")));
    QVERIFY(QFile::resize(manifest, qint64(65) << 20));  // sparse
    const auto file = Package::readJson(disk.files, manifest, disk.folder.path());
    QCOMPARE(file.error().kind, ErrorKind::tooLarge);
    QVERIFY(!BrandDocument::load(disk.services(), disk.path("missing")));
    QVERIFY(!BrandDocument::load(disk.services(), QString()));
  }

  // A manifest that was put together elsewhere: sections and items repeat, within one and across.
  void givesWhatSharesAnIDOneOfItsOwn() {
    TestServices disk;
    const Brand brand = RandomBrand(4).brand(3, 12);
    Brand twice = brand;
    twice.sections += brand.sections;
    for (const Item& item : brand.sections.at(0).items) twice.sections[0].items.append(item);
    const QString package = disk.path("Twice.tarnloft");
    QVERIFY(writeFile(Package::manifestPath(package), *encode(twice)));

    const Brand read = BrandDocument::load(disk.services(), package)->brand();
    QCOMPARE(read, BrandDocument::load(disk.services(), package)->brand());
    QSet<QUuid> sections, items;
    qsizetype count = 0;
    for (qsizetype i = 0; i < read.sections.size(); ++i) {
      sections.insert(read.sections.at(i).id);
      for (const Item& item : read.sections.at(i).items) items.insert(item.id);
      count += read.sections.at(i).items.size();
      QCOMPARE(read.sections.at(i).items.size(), twice.sections.at(i).items.size());
      if (i < brand.sections.size()) QCOMPARE(read.sections.at(i).id, brand.sections.at(i).id);
    }
    QCOMPARE(sections.size(), read.sections.size());
    QCOMPARE(items.size(), count);
  }

  void namesFitAFolder() {
    const QString letter = "é", marked = QString::fromUtf8("e\u0301\u0323");
    const QString family = QString::fromUtf8("👩‍👩‍👧");
    const Cases<QString, QString> cases{
        {"parent", "..", "-."},
        {"dots", " ... ", "-.."},
        {"slashes", "/.x:", "-.x-"},
        {"blank", " \t\n", "Untitled Brand"},
        {"300 letters of two bytes", letter.repeated(300), letter.repeated(119)},
        {"combining marks", marked.repeated(100), marked.repeated(47)},
        {"one letter under 200 marks", 'x' + QString(200, QChar(0x301)), "Untitled Brand"},
        {"families", family.repeated(30), family.repeated(13)},
        {"cut behind a blank", QString(238, 'x') + " y", QString(238, 'x')}};
    cases.check([&](const QString& brand, const QString& name) {
      QCOMPARE(Package::fileNameFor(brand), name);
      TestServices disk;
      for (const char* ending : {" 9999.tarnloft", " Brand Page.html"}) {
        QVERIFY(writeFile(disk.path(name + ending), "x"));
      }
    });
  }
};

QTEST_GUILESS_MAIN(TestDocument)
#include "tst_document.moc"
