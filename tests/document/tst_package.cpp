#include "document/Package.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

// The names that packages get.
class TestPackage : public QObject {
  Q_OBJECT

 private slots:
  void namesFitAFolder() {
    const QString letter = "é", marked = QString::fromUtf8("e\u0301\u0323");
    const QString family = QString::fromUtf8("👩‍👩‍👧"), flag = QString::fromUtf8("🇫🇷");
    const Cases<QString, QString> cases{
        {"hidden", ".x", "-x"},
        {"parent", "..", "-."},
        {"dots", " ... ", "-.."},
        {"dots within", "a.b.", "a.b."},
        {"slashes", "/.x:", "-.x-"},
        {"blank", " \t\n", "Untitled Brand"},
        {"fits to the byte", QString(239, 'x'), QString(239, 'x')},
        {"300 letters", QString(300, 'x'), QString(239, 'x')},
        {"300 letters of two bytes", letter.repeated(300), letter.repeated(119)},
        {"combining marks", marked.repeated(100), marked.repeated(47)},
        {"one letter under 200 marks", 'x' + QString(200, QChar(0x301)), "Untitled Brand"},
        {"families", family.repeated(30), family.repeated(13)},
        {"flags", "x" + flag.repeated(40), "x" + flag.repeated(29)},
        {"cut behind a blank", QString(238, 'x') + " y", QString(238, 'x')}};
    cases.check([&](const QString& brand, const QString& name) {
      QCOMPARE(Package::fileNameFor(brand), name);
      TestServices disk;
      for (const char* ending : {" 9999.tarnloft", " Brand Page.html"}) {
        QVERIFY(writeFile(disk.path(name + ending), "x"));
      }
    });
  }

  void namesThatAreTakenAreCounted() {
    for (const auto& [brand, name] : {std::pair(QString("\tA/B:C\n"), QString("A-B-C")),
                                      {QString(300, 'x'), QString(239, 'x')}}) {
      TestServices disk;
      for (const char* counter : {"", " 2", " 3"}) {
        const QString path = Package::uniquePackageURL(disk.files, disk.folder.path(), brand);
        QCOMPARE(path, disk.path(name + counter + ".tarnloft"));
        QVERIFY(disk.files.makeFolder(path));
      }
    }
  }
};

QTEST_APPLESS_MAIN(TestPackage)
#include "tst_package.moc"
