#include "document/Package.h"
#include "testing/TestServices.h"

#include <QTest>

using namespace tarnloft;

// The names that packages get.
class TestPackage : public QObject {
  Q_OBJECT

 private slots:
  void namesFitAFolder_data() {
    QTest::addColumn<QString>("brand");
    QTest::addColumn<QString>("name");
    const auto row = [](const char* what, const QString& brand, const QString& name) {
      QTest::newRow(what) << brand << name;
    };
    const QString letter = QStringLiteral("é"), marked = QString::fromUtf8("e\u0301\u0323");
    const QString family = QString::fromUtf8("👩‍👩‍👧"), flag = QString::fromUtf8("🇫🇷");
    row("hidden", ".x", "-x");
    row("parent", "..", "-.");
    row("dots", " ... ", "-..");
    row("dots within", "a.b.", "a.b.");
    row("slashes", "/.x:", "-.x-");
    row("blank", " \t\n", "Untitled Brand");
    row("fits to the byte", QString(239, 'x'), QString(239, 'x'));
    row("300 letters", QString(300, 'x'), QString(239, 'x'));
    row("300 letters of two bytes", letter.repeated(300), letter.repeated(119));
    row("combining marks", marked.repeated(100), marked.repeated(47));
    row("one letter under 200 marks", 'x' + QString(200, QChar(0x301)), "Untitled Brand");
    row("families", family.repeated(30), family.repeated(13));
    row("flags", "x" + flag.repeated(40), "x" + flag.repeated(29));
    row("cut behind a blank", QString(238, 'x') + " y", QString(238, 'x'));
  }

  void namesFitAFolder() {
    QFETCH(QString, brand);
    QTEST(Package::fileNameFor(brand), "name");
    const QString name = Package::fileNameFor(brand);
    TestServices disk;
    for (const char* ending : {" 9999.tarnloft", " Brand Page.html"}) {
      QVERIFY(writeFile(disk.path(name + ending), "x"));
    }
  }

  void longNamesStayApart() {
    TestServices disk;
    for (const char* counter : {"", " 2", " 3"}) {
      const QString path =
          Package::uniquePackageURL(disk.files, disk.folder.path(), QString(300, 'x'));
      QCOMPARE(path, disk.path(QString(239, 'x') + counter + ".tarnloft"));
      QVERIFY(disk.files.makeFolder(path));
    }
  }
};

QTEST_APPLESS_MAIN(TestPackage)

#include "tst_package.moc"
