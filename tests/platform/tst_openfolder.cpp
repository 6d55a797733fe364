#include "testing/TestServices.h"

#include <QTest>

#include <sys/stat.h>

using namespace tarnloft;

namespace {

struct Package {
  TestServices disk;
  QString root = disk.path("p.tarnloft");
  QString source = disk.path("source");

  Package() {
    QDir().mkpath(root + "/assets");
    writeFile(source, "content");
  }
  std::shared_ptr<OpenFolder> open(const char* name = "assets") const {
    return disk.files.openFolder(root + '/' + name, root).value_or(nullptr);
  }
};

QStringList entries(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

}  // namespace

class TestOpenFolder : public QObject {
  Q_OBJECT

 private slots:
  void takesFilesInWhereverItIsMoved() {
    Package package;
    const auto folder = package.open();
    QVERIFY(folder);
    QCOMPARE(*folder->path(), QFileInfo(package.root + "/assets").canonicalFilePath());
    for (const char* name : {"a (deleted)", "b"}) {
      const QString moved = package.disk.path(name);
      QVERIFY(QDir().rename(package.root, moved));
      QVERIFY(folder->copyIn(package.source, QString("copied to ") + name));
      QVERIFY(folder->writeIn("written", QString("written to ") + name));
      QCOMPARE(*folder->path(), QFileInfo(moved + "/assets").canonicalFilePath());
      QCOMPARE(contentOf(moved + "/assets/copied to " + name), "content");
      QCOMPARE(contentOf(moved + "/assets/written to " + name), "written");
      package.root = moved;
    }
    QCOMPARE(entries(package.root + "/assets").size(), 4);
  }

  void takesNothingInOnceDeleted() {
    Package package;
    const auto folder = package.open();
    QVERIFY(folder && QDir(package.root).removeRecursively());
    for (int again = 0; again < 2; ++again) {
      QVERIFY(!folder->copyIn(package.source, "copied"));
      QVERIFY(!folder->writeIn("written", "written"));
      QVERIFY(!folder->path());
      QVERIFY(QDir().mkpath(package.root + "/assets"));  // another one in its place
    }
    QCOMPARE(entries(package.root + "/assets"), QStringList());
  }

  void isOpenedOnlyInside_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("opens");
    QTest::newRow("inside") << "p/assets" << true;
    QTest::newRow("the root") << "p" << true;
    QTest::newRow("a link to the inside") << "p/in" << true;
    QTest::newRow("an absolute link to the inside") << "p/absolute" << true;
    QTest::newRow("the root by another way") << "link" << true;
    QTest::newRow("a link to the outside") << "p/out" << false;
    QTest::newRow("beside") << "p2" << false;
    QTest::newRow("above") << "p/.." << false;
    QTest::newRow("a file") << "p/assets/file" << false;
    QTest::newRow("nothing") << "p/missing" << false;
  }

  void isOpenedOnlyInside() {
    QFETCH(QString, path);
    TestServices disk;
    QVERIFY(writeFile(disk.path("p/assets/file"), "x") && QDir().mkpath(disk.path("p2")));
    QVERIFY(QFile::link("assets", disk.path("p/in")) && QFile::link("../p2", disk.path("p/out")));
    QVERIFY(QFile::link(disk.path("p/assets"), disk.path("p/absolute")));
    QVERIFY(QFile::link("p", disk.path("link")));
    QTEST(disk.files.openFolder(disk.path(path), disk.path("p")).has_value(), "opens");
  }

  void refusesNames_data() {
    QTest::addColumn<QString>("name");
    for (const char* name : {"", ".", "..", "../out", "sub/file", "taken", "folder"}) {
      QTest::newRow(name) << name;
    }
    QTest::newRow("too long") << QString(300, 'x');
  }

  void refusesNames() {
    QFETCH(QString, name);
    Package package;
    const QString assets = package.root + "/assets";
    QVERIFY(writeFile(assets + "/taken", "old") && QDir().mkpath(assets + "/folder"));
    QVERIFY(QDir().mkpath(assets + "/sub"));
    const auto folder = package.open();
    QVERIFY(folder);
    QVERIFY(!folder->copyIn(package.source, name) && !folder->writeIn("new", name));
    QVERIFY(!folder->copyIn(package.root, "a folder") && !folder->copyIn("missing", "x"));
    QCOMPARE(entries(assets), QStringList({"folder", "sub", "taken"}));
    QCOMPARE(contentOf(assets + "/taken"), "old");
  }
};

QTEST_APPLESS_MAIN(TestOpenFolder)

#include "tst_openfolder.moc"
